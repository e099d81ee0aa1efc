#pragma once
// Hands that work on the dialog of a baptism book.

#include "registers/BaptismWorld.h"
#include "registers/books/frmPropiedadesLibro.h"

namespace fidaleon::tests {

inline constexpr const char* PROPERTIES = "frmPropiedadesLibroBautismo";
inline constexpr const char* LOSE_CHANGES =
    "Ha realizado cambios en las partidas del libro. ¿Desea cerrar el formulario y perder así "
    "todos los cambios realizados?";

using Rows = std::vector<std::string>;

class PropertiesWorld : public BaptismWorld {
 protected:
  using BaptismWorld::BaptismWorld;

  /// The caller's part; `act` works on the dialog.
  void openBook(std::int32_t id, forms::ScriptedUser::Act act) {
    w.user.expectForm(PROPERTIES, std::move(act));
    frmPropiedadesLibroBautismo dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.lngLibro = id;
    dialog.Show();
  }
  /// The entries in the order of folios, of one name each.
  void fill(std::int32_t libro, const std::vector<std::string>& names, int perFolio = 1) {
    for (std::size_t i = 0; i < names.size(); ++i)
      store(record(names[i], libro, 1 + static_cast<int>(i) / perFolio, std::to_string(i + 1)));
  }

  static forms::Grid& grid(FormDriver& d) { return d.get<forms::Grid>("msgPartidas"); }
  /// "folio/number name", for each row that is shown.
  static Rows shown(FormDriver& d) {
    Rows rows;
    for (int r = 1; r <= grid(d).rowCount(); ++r)
      rows.push_back(grid(d).cell(r, 0) + "/" + grid(d).cell(r, 1) + " " + grid(d).cell(r, 2));
    return rows;
  }
  /// The same of what the table holds.
  Rows stored(std::int32_t libro) {
    Rows rows;
    for (auto rs = w.con().Execute(
             "SELECT Folio, Numero, Nombre FROM Bautismo, Bautismo_Hijo WHERE CodBautismo = "
             "IDBautismo AND CodLibro = " +
             std::to_string(libro) + " ORDER BY Folio, Val(Numero), IDBautismo");
         !rs.EOF_(); rs.MoveNext())
      rows.push_back(rs.text("Folio") + "/" + rs.text("Numero") + " " + rs.text("Nombre"));
    return rows;
  }

  static void toEntries(FormDriver& d) { d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS); }
  /// Adds one entry that has no family yet.
  void add(FormDriver& d, const std::string& name, bool old = false,
           const std::string& baptised = {}) {
    w.user.expectForm(DIALOG, [this, name, old, baptised](FormDriver& e) {
      typeChild(e, name, "Nuevo", name);
      e.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
      if (!baptised.empty()) e.type("adtpBautismo(2)", baptised);
      if (!old) w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
      w.user.expectMessage(FURTHER, Answer::No);
      accept(e);
    });
    d.click("cmdPartidas(0)");
  }
  /// Opens the row and gives the child another name.
  void rename(FormDriver& d, int row, const std::string& from, const std::string& to) {
    w.user.expectForm(DIALOG, [from, to](FormDriver& e) {
      e.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
      EXPECT_EQ(e.text("txtBautismo(7)"), from);
      e.type("txtBautismo(7)", to);
      accept(e);
    });
    d.row("msgPartidas", row);
    d.click("cmdPartidas(1)");
  }
  static void remove(FormDriver& d, int row) {
    d.row("msgPartidas", row);
    d.click("cmdPartidas(3)");
  }
  static void acceptBook(FormDriver& d) { d.click("cmdBoton(0)"); }
  static void cancelBook(FormDriver& d) { d.click("cmdBoton(1)"); }
};

}  // namespace fidaleon::tests
