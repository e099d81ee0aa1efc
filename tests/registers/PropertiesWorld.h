#pragma once
// Hands that work on the dialog of a book of any register.

#include "registers/Registers.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

inline constexpr const char* LOSE_CHANGES =
    "Ha realizado cambios en las partidas del libro. ¿Desea cerrar el formulario y perder así "
    "todos los cambios realizados?";

using Rows = std::vector<std::string>;

class PropertiesWorld : public ::testing::TestWithParam<Register> {
 protected:
  const Register& r = GetParam();

  std::string sql(const PlantillaSql& statement) const { return sentencia(r.sacrament, statement); }
  std::int32_t book(const BookRow& b) { return insertBook(w, r.sacrament, parish, b); }
  /// The entries in the order of folios, of one name each.
  void fill(std::int32_t libro, const std::vector<std::string>& names, int perFolio = 1) {
    for (std::size_t i = 0; i < names.size(); ++i)
      EXPECT_TRUE(
          r.add(w, names[i], libro, 1 + static_cast<int>(i) / perFolio, std::to_string(i + 1)));
  }
  std::int64_t entries() { return w.count(r.sacrament.tablaPartidas); }
  std::string nameTable() const { return formaPartida(r.sacrament)->personas[0]; }

  /// The caller's part; `act` works on the dialog.
  void openBook(std::int32_t id, Act act) {
    w.user.expectForm(r.properties, std::move(act));
    const auto dialog = r.openBook(w.contexto);
    dialog->conBaseDatos = &w.con();
    dialog->lngLibro = id;
    dialog->Show();
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
      const auto id = static_cast<std::int32_t>(rs.integer(r.sacrament.clavePartida));
      const std::string who = nombrePartida(w.con(), r.sacrament, id);
      rows.push_back(rs.text("Folio") + "/" + rs.text("Numero") + " " +
                     who.substr(0, who.find(' ')));
    }
    return rows;
  }

  // Controls of the dialog of an entry.
  std::string control(const char* kind, int index) const {
    return kind + std::string(r.sacrament.palabra) + "(" + std::to_string(index) + ")";
  }
  std::string nameBox() const { return control("txt", r.nameField.index); }
  void toName(FormDriver& e) const {
    e.tab(std::string("mst") + r.sacrament.palabra, r.nameField.tab);
  }
  void accept(FormDriver& e) const { e.click(control("cmd", 0)); }
  void cancel(FormDriver& e) const { e.click(control("cmd", 1)); }
  void typeEntry(FormDriver& e, const std::string& name, const std::string& day) {
    toName(e);
    for (const int field : {0, 1, 2})
      e.type(control("txt", r.nameField.index + field), field == 1 ? "Nuevo" : name);
    r.settle(e);
    e.tab(std::string("mst") + r.sacrament.palabra, r.dayField.tab);
    if (!day.empty()) e.type(control("adtp", r.dayField.index), day);
  }

  static void toEntries(FormDriver& d) { d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS); }
  /// Adds one entry whose baptism stands in no book here.
  void add(FormDriver& d, const std::string& name, bool old = false,
           const std::string& day = "20/11/2026") {
    w.user.expectForm(r.dialog, [this, name, old, day](FormDriver& e) {
      typeEntry(e, name, day);
      if (!old || r.blanksOfOldToo) w.user.expectMessage(r.blanks, Answer::Yes);
      w.user.expectMessage("¿Desea dar de alta nuevas partidas?", Answer::No);
      accept(e);
    });
    d.click("cmdPartidas(0)");
  }
  /// Opens the row and gives the person another name.
  void rename(FormDriver& d, int row, const std::string& from, const std::string& to) {
    w.user.expectForm(r.dialog, [this, from, to](FormDriver& e) {
      toName(e);
      EXPECT_EQ(e.text(nameBox()), from);
      e.type(nameBox(), to);
      accept(e);
    });
    d.row("msgPartidas", row);
    d.click("cmdPartidas(1)");
  }
  /// Opens the row and changes nothing.
  void reopen(FormDriver& d, int row) {
    w.user.expectForm(r.dialog, [this](FormDriver& e) { accept(e); });
    d.row("msgPartidas", row);
    d.click("cmdPartidas(1)");
  }
  static void remove(FormDriver& d, int row) {
    d.row("msgPartidas", row);
    d.click("cmdPartidas(3)");
  }
  static void acceptBook(FormDriver& d) { d.click("cmdBoton(0)"); }
  static void cancelBook(FormDriver& d) { d.click("cmdBoton(1)"); }

  TestWorld w;
  std::int32_t town = w.municipio("Alcalá de Henares", "Madrid");
  std::int32_t parish = w.institucion("San Pedro", town);
};

}  // namespace fidaleon::tests
