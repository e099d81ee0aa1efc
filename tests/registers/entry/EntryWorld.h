#pragma once
// A parish with books of one register, and hands that fill its entry dialog. What holds of the
// entries of all registers is proved once, for each EntryKind.

#include "registers/Registers.h"
#include "registers/entry/DialogoDePartida.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

inline constexpr const char* FURTHER_ENTRY = "¿Desea dar de alta nuevas partidas?";

/// What acceptance says of something that another desk has deleted.
inline std::string deleted(const std::string& what) {
  return "Ya no existe, porque se ha eliminado desde otro puesto:\n\n" + what +
         "\n\nLo que ha escrito sigue aquí. Elija otro y acepte de nuevo.";
}

class EntryHands : public ::testing::Test {
 protected:
  explicit EntryHands(const EntryKind& kind,
                      const char* edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID)
      : k(kind), w(edition) {}
  std::string word() const { return k.s.palabra; }
  std::string text(int i) const { return "txt" + word() + "(" + std::to_string(i) + ")"; }
  std::string list(int i) const { return "cbo" + word() + "(" + std::to_string(i) + ")"; }
  std::string date(int i) const { return "adtp" + word() + "(" + std::to_string(i) + ")"; }
  std::string button(int i) const { return "cmd" + word() + "(" + std::to_string(i) + ")"; }
  std::string dialog() const { return "frmPartida" + word(); }
  std::string name() const { return text(k.name.index); }

  std::int32_t book(const std::string& title, bool isNew = true, int format = 3,
                    const std::string& created = "19900101", bool closed = false) {
    return insertBook(w, k.s, parish, {title, isNew, format, closed, created});
  }
  std::int32_t entry(const std::string& who, std::int32_t inBook, int folio,
                     const std::string& number) {
    return insertEntry(w, k.s, {who, inBook, folio, number, 0, {}});
  }

  /// The dialog as the tree opens it.
  auto dialogFor(cCOperacion operation, std::int32_t id = 0) {
    auto made = dialogoDePartida(&k.s)(w.contexto);
    made->conBaseDatos = &w.con();
    made->lngID = id;
    made->Operacion = operation;
    const bool request =
        operation == cCOperacion::ANADIRSOLICITUD || operation == cCOperacion::EDITARSOLICITUD;
    if (!request) made->Origen = cCOrigen::PRINCIPAL;
    return made;
  }
  /// Shows it; `act` works on it.
  void open(cCOperacion operation, Act act, std::int32_t id = 0) {
    w.user.expectForm(dialog(), std::move(act));
    dialogFor(operation, id)->Show();
  }

  void edit(std::int32_t id, Act act) { open(cCOperacion::EDITAR, std::move(act), id); }
  /// The user gives up at the end.
  void openAndCancel(cCOperacion operation, const Act& act) {
    open(operation, [&](FormDriver& d) {
      act(d);
      cancel(d);
    });
  }

  void tab(FormDriver& d, int index) const { d.tab("mst" + word(), index); }
  int tab(FormDriver& d) const { return d.get<forms::TabStrip>("mst" + word()).tab(); }
  void chooseBook(FormDriver& d, const std::string& title) const {
    d.choose(list(k.institution), "San Pedro");
    d.choose(list(k.book), title);
  }
  void typePerson(FormDriver& d, const std::string& who, const std::string& first = "García",
                  const std::string& second = "Pérez") const {
    k.settle(d);
    tab(d, k.name.tab);
    d.type(text(k.name.index), who);
    d.type(text(k.name.index + 1), first);
    d.type(text(k.name.index + 2), second);
  }
  void accept(FormDriver& d) const { d.click(button(0)); }
  void cancel(FormDriver& d) const { d.click(button(1)); }
  void acceptNew(FormDriver& d, Answer further) { acceptAfter(d, true, FURTHER_ENTRY, further); }
  void acceptOld(FormDriver& d, Answer further) {
    acceptAfter(d, k.asksOthers, FURTHER_ENTRY, further);
  }
  void acceptAfter(FormDriver& d, bool blanks, const char* question, Answer further) {
    if (blanks) w.user.expectMessage(k.blanks, Answer::Yes);
    w.user.expectMessage(question, further);
    accept(d);
  }
  void acceptEdit(FormDriver& d) {
    if (k.asksOthers) w.user.expectMessage(k.blanks, Answer::Yes);
    accept(d);
  }

  std::string sql(const PlantillaSql& statement) const { return sentencia(k.s, statement); }
  /// As a draft does it.
  static void putBack(FormDriver& d, const forms::Contents& typed) {
    EXPECT_THAT(forms::putBack(d.form(), typed.fields), IsEmpty());
    EXPECT_EQ(d.form().putBackOwnWork(typed.own), "");
  }

  std::int64_t entries(const std::string& condition = "") {
    return w.count(k.s.tablaPartidas + (condition.empty() ? "" : " WHERE " + condition));
  }
  std::string value(const std::string& column) {
    return w.value("SELECT " + column + " FROM " + k.s.tablaPartidas);
  }
  std::string bookValue(const std::string& column) {
    return w.value("SELECT " + column + " FROM " + k.s.tablaLibros);
  }

  const EntryKind& k;
  TestWorld w;
  std::int32_t town = w.municipio("Alcalá de Henares", "Madrid");
  std::int32_t parish = w.institucion("San Pedro", town);
};

class EntryWorld : public EntryHands, public ::testing::WithParamInterface<const EntryKind*> {
 protected:
  EntryWorld() : EntryHands(*GetParam()) {}
};

inline const auto EVERY_ENTRY =
    ::testing::Values(&BAPTISM_ENTRY, &CONFIRMATION_ENTRY, &MARRIAGE_ENTRY, &DEATH_ENTRY);
inline std::string wordOf(const ::testing::TestParamInfo<const EntryKind*>& info) {
  return info.param->s.palabra;
}

}  // namespace fidaleon::tests
