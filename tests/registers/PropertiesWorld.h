#pragma once
// Hands that work on the dialog of a book of any register.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

inline constexpr const char* LOSE_CHANGES =
    "Ha realizado cambios en las partidas del libro. ¿Desea cerrar el formulario y perder así "
    "todos los cambios realizados?";

using Rows = std::vector<std::string>;

class PropertiesWorld : public EntryHands, public ::testing::WithParamInterface<Register> {
 protected:
  PropertiesWorld() : EntryHands(GetParam().entry) {}
  const Register& r = GetParam();

  std::int32_t book(const BookRow& b) { return insertBook(w, k.s, parish, b); }
  /// The entries in the order of folios, of one name each.
  void fill(std::int32_t libro, const std::vector<std::string>& names, int perFolio = 1) {
    for (std::size_t i = 0; i < names.size(); ++i)
      EXPECT_TRUE(
          r.add(w, names[i], libro, 1 + static_cast<int>(i) / perFolio, std::to_string(i + 1)));
  }
  std::string nameTable() const { return formaPartida(k.s)->personas[0]; }

  /// The caller's part.
  std::unique_ptr<frmPropiedadesLibro> bookDialog(std::int32_t id) {
    auto made = propiedadesDeLibro(k.s)(w.contexto);
    made->conBaseDatos = &w.con();
    made->lngLibro = id;
    return made;
  }
  /// `act` works on the dialog.
  void openBook(std::int32_t id, Act act) {
    w.user.expectForm("frmPropiedadesLibro" + word(), std::move(act));
    bookDialog(id)->Show();
  }

  /// Works on the list of its entries and accepts.
  void changeBook(std::int32_t id, const Act& act) {
    openBook(id, [&](FormDriver& d) {
      toEntries(d);
      act(d);
      acceptBook(d);
    });
  }

  static forms::Grid& grid(FormDriver& d) { return d.get<forms::Grid>("msgPartidas"); }
  /// "folio/number name", for each row that is shown.
  static Rows shown(FormDriver& d) {
    Rows rows;
    for (int n = 1; n <= grid(d).rowCount(); ++n)
      rows.push_back(grid(d).cell(n, 0) + "/" + grid(d).cell(n, 1) + " " + grid(d).cell(n, 2));
    return rows;
  }
  static std::string annulled(FormDriver& d, int row) {
    return grid(d).cell(row, grid(d).columns() - 1);
  }
  /// The same of what the table holds.
  Rows stored(std::int32_t libro) {
    Rows rows;
    for (auto rs = w.con().Execute(sql("SELECT * FROM {Partidas} WHERE CodLibro = ") +
                                   std::to_string(libro) + " ORDER BY Folio, Val(Numero)");
         !rs.EOF_(); rs.MoveNext()) {
      const auto id = static_cast<std::int32_t>(rs.integer(k.s.clavePartida));
      const std::string who = nombrePartida(w.con(), k.s, id);
      rows.push_back(rs.text("Folio") + "/" + rs.text("Numero") + " " +
                     who.substr(0, who.find(' ')));
    }
    return rows;
  }

  void toName(FormDriver& e) const { tab(e, k.name.tab); }
  void typeEntry(FormDriver& e, const std::string& who, const std::string& day) {
    typePerson(e, who, "Nuevo", who);
    tab(e, k.day.tab);
    if (!day.empty()) e.type(date(k.day.index), day);
  }

  static void toEntries(FormDriver& d) { d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS); }
  /// Adds one entry whose baptism stands in no book here.
  void add(FormDriver& d, const std::string& who, bool old = false,
           const std::string& day = "20/11/2026") {
    w.user.expectForm(dialog(), [this, who, old, day](FormDriver& e) {
      typeEntry(e, who, day);
      old ? acceptOld(e, Answer::No) : acceptNew(e, Answer::No);
    });
    d.click("cmdPartidas(0)");
  }
  /// Opens the row and gives the person another name.
  void rename(FormDriver& d, int row, const std::string& from, const std::string& to) {
    w.user.expectForm(dialog(), [this, from, to](FormDriver& e) {
      toName(e);
      EXPECT_EQ(e.text(name()), from);
      e.type(name(), to);
      accept(e);
    });
    d.row("msgPartidas", row);
    d.click("cmdPartidas(1)");
  }
  /// Opens the row and changes nothing.
  void reopen(FormDriver& d, int row) {
    w.user.expectForm(dialog(), [this](FormDriver& e) { accept(e); });
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
