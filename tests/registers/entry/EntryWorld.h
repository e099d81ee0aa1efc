#pragma once
// A parish with books of one register, and hands that fill its entry dialog. What holds of the
// entries of all registers is proved once, for each EntryKind.

#include <array>

#include "registers/Registers.h"
#include "registers/entry/DialogoDePartida.h"
#include "store/FailingEngine.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

/// What a test has to know of a register's entry dialog.
struct EntryKind {
  const Sacramento& s;
  int institution, book;  // lists
  Place name;             // the surnames follow
  Place where;            // a text that says where
  Place day;              // date of the sacrament
  Place born;             // list of provinces
  const char* bornColumn;
  Place notes;
  int remarks;
  const char* person;   // table with the name
  const char* lastRow;  // table of the row that is inserted last
  const char* newCaption;
  const char* oldCaption;
  const char* editCaption;
  const char* requestCaption;
  const char* position;         // the first one in a caption
  const char* noPosition = "";  // in that of a new one, before there is a book
  const char* replaced;
  const char* blanks;                 // question
  bool asksOld, asksOther, asksOnce;  // it, of blank texts; it is always asked of new entries
  bool annulsOld, annulsEdit;
  bool annulledIsLocked, notesStayOpen;
  const char* nextPlace;  // what stands there for the next entry
  bool nextAtName;        // which is begun with the name
  /// The date of an old book of 1950 after its first entry, of 1961, its second, of 1970, and its
  /// third, of 1930.
  std::array<const char*, 3> bookDates;
  int commits;  // of a new entry
  /// Makes today go where it cannot be, and names a second person.
  void (*settle)(FormDriver&);
  const char* secondPerson = "";  // as questions have it behind the first
  const char* institutionWord = "Institución";
};

using DB = frmPartidaBautismo;
inline const EntryKind BAPTISM_ENTRY{.s = BAUTISMO,
                                     .institution = DB::Institucion,
                                     .book = DB::Libro,
                                     .name = OfBaptism::nameField,
                                     .where = {DB::TAB_BAUTISMO, DB::ParroquiaBautismo},
                                     .day = OfBaptism::dayField,
                                     .born = {DB::TAB_BAUTIZADO, DB::ProvinciaNac},
                                     .bornColumn = "CodMunicipioNac",
                                     .notes = {DB::TAB_NOTAS, DB::NotasMarginales},
                                     .remarks = DB::Observaciones,
                                     .person = "bautismo_hijo",
                                     .lastRow = "bautismo_hijo",
                                     .newCaption = "Agregar partida de bautismo nueva",
                                     .oldCaption = "Agregar partida de bautismo antigua",
                                     .editCaption = "Propiedades de partida de bautismo ",
                                     .requestCaption = "Agregar solicitud de bautismo",
                                     .position = ". Folio:1 número:1",
                                     .replaced = OfBaptism::replaced,
                                     .blanks = OfBaptism::blanks,
                                     .annulsOld = true,
                                     .annulsEdit = true,
                                     .notesStayOpen = true,
                                     .nextPlace = "",
                                     .bookDates = {"19610705", "19700705", "19700705"},
                                     .commits = 3,
                                     .settle = OfBaptism::settle};

using DC = frmPartidaConfirmacion;
inline const EntryKind CONFIRMATION_ENTRY{.s = CONFIRMACION,
                                          .institution = DC::Institucion,
                                          .book = DC::Libro,
                                          .name = OfConfirmation::nameField,
                                          .where = {DC::TAB_CONFIRMACION, DC::Parroquia},
                                          .day = OfConfirmation::dayField,
                                          .born = {DC::TAB_PERSONALES, DC::ProvinciaNac},
                                          .bornColumn = "CodMunicipioNac",
                                          .notes = {DC::TAB_NOTAS, DC::NotasMarginales},
                                          .remarks = DC::Observaciones,
                                          .person = "confirmacion",
                                          .lastRow = "confirmacion_bautismo",
                                          .newCaption = "Alta de partida de confirmación nueva",
                                          .oldCaption = "Alta de partida de confirmación antigua",
                                          .editCaption = "Propiedades de partida de confirmación ",
                                          .requestCaption = "Nueva solicitud de confirmación",
                                          .position = ". Folio:1, número:1",
                                          .replaced = OfConfirmation::replaced,
                                          .blanks = OfConfirmation::blanks,
                                          .asksOld = true,
                                          .asksOther = true,
                                          .annulsOld = true,
                                          .annulledIsLocked = true,
                                          .notesStayOpen = true,
                                          .nextPlace = "San Juan",
                                          .nextAtName = true,
                                          .bookDates = {"19610705", "19610705", "19610705"},
                                          .commits = 2,
                                          .settle = OfConfirmation::settle};

using DD = frmPartidaDefuncion;
inline const EntryKind DEATH_ENTRY{.s = DEFUNCION,
                                   .institution = DD::Institucion,
                                   .book = DD::Libro,
                                   .name = OfDeath::nameField,
                                   .where = {DD::TAB_PARROQUIA, DD::Parroquia},
                                   .day = OfDeath::dayField,
                                   .born = {DD::TAB_FAMILIA, DD::ProvinciaNaturalDe},
                                   .bornColumn = "CodMunicipioNaturalDe",
                                   .notes = {DD::TAB_NOTAS, DD::NotasMarginales},
                                   .remarks = DD::Observaciones,
                                   .person = "defuncion",
                                   .lastRow = "Defuncion_Datos",
                                   .newCaption = "Alta de partida de defunción nueva",
                                   .oldCaption = "Alta de partida de defunción antigua",
                                   .editCaption = "Propiedades de partida de defunción ",
                                   .position = ". Folio:1, número:1",
                                   .noPosition = ". Folio:, número:",
                                   .replaced = OfDeath::replaced,
                                   .blanks = OfDeath::blanks,
                                   .asksOld = true,
                                   .asksOther = true,
                                   .asksOnce = true,
                                   .annulsEdit = true,
                                   .annulledIsLocked = true,
                                   .nextPlace = "San Pedro",
                                   .bookDates = {"19500101", "19500101", "19500101"},
                                   .commits = 2,
                                   .settle = OfDeath::settle};

using DM = frmPartidaMatrimonio;
inline const EntryKind MARRIAGE_ENTRY{.s = MATRIMONIO,
                                      .institution = DM::Institucion,
                                      .book = DM::Libro,
                                      .name = OfMarriage::nameField,
                                      .where = {DM::TAB_COMPROMISO, DM::Parroquia},
                                      .day = OfMarriage::dayField,
                                      .born = {DM::TAB_PERSONALES, DM::ProvinciaNac},
                                      .bornColumn = "CodMunicipioNac",
                                      .notes = {DM::TAB_NOTAS, DM::NotasMarginales},
                                      .remarks = DM::Observaciones,
                                      .person = "matrimonio_novios",
                                      .lastRow = "matrimonio_expediente",
                                      .newCaption = "Alta de partida de matrimonio nueva",
                                      .oldCaption = "Alta de partida de matrimonio antigua",
                                      .editCaption = "Propiedades de partida de matrimonio ",
                                      .requestCaption = "Nueva solicitud de matrimonio",
                                      .position = ". Folio:1, número:1",
                                      .noPosition = ".",
                                      .replaced = OfMarriage::replaced,
                                      .blanks = OfMarriage::blanks,
                                      .asksOld = true,
                                      .asksOther = true,
                                      .annulsOld = true,
                                      .annulledIsLocked = true,
                                      .notesStayOpen = true,
                                      .nextPlace = "San Pedro",
                                      .nextAtName = true,
                                      .bookDates = {"19610705", "19610705", "19610705"},
                                      .commits = 2,
                                      .settle = OfMarriage::settle,
                                      .secondPerson = " y de Rosa Sanz Gil",
                                      .institutionWord = "institución"};

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
  std::string name() const { return text(k.name.index); }

  std::int32_t book(const std::string& title, bool isNew = true, int format = 3,
                    const std::string& created = "19900101", bool closed = false) {
    return insertBook(w, k.s, parish, {title, isNew, format, closed, created});
  }
  std::int32_t entry(const std::string& who, std::int32_t inBook, int folio,
                     const std::string& number) {
    return insertEntry(w, k.s, {who, inBook, folio, number, 0, {}});
  }

  /// Shows the dialog as the tree does; `act` works on it.
  void open(cCOperacion operation, Act act, std::int32_t id = 0) {
    w.user.expectForm("frmPartida" + word(), std::move(act));
    const auto dialog = dialogoDePartida(&k.s)(w.contexto);
    dialog->conBaseDatos = &w.con();
    dialog->lngID = id;
    dialog->Operacion = operation;
    const bool request =
        operation == cCOperacion::ANADIRSOLICITUD || operation == cCOperacion::EDITARSOLICITUD;
    if (!request) dialog->Origen = cCOrigen::PRINCIPAL;
    dialog->Show();
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
    acceptAfter(d, k.asksOld, FURTHER_ENTRY, further);
  }
  void acceptAfter(FormDriver& d, bool blanks, const char* question, Answer further) {
    if (blanks) w.user.expectMessage(k.blanks, Answer::Yes);
    w.user.expectMessage(question, further);
    accept(d);
  }
  void acceptEdit(FormDriver& d) {
    if (k.asksOther) w.user.expectMessage(k.blanks, Answer::Yes);
    accept(d);
  }

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
