#pragma once
// What tests have to know of each register, so that one suite holds for all of them.

#include <array>
#include <ostream>

#include "registers/Rows.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/cBaseDatos.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"
#include "registers/death/frmPartidaDefuncion.h"
#include "registers/marriage/frmPartidaMatrimonio.h"

namespace fidaleon::tests {

/// A field of an entry dialog.
struct Place {
  int tab;
  int index;
};

struct OfBaptism {
  using Record = cBautismo;
  static inline const Sacramento& sacrament = BAUTISMO;
  static inline const DescripcionAlmacen<Record>& store = ALMACEN_BAUTISMO;
  static constexpr auto load = &cBaseDatos::GrabarBasedatosColeccion;
  static constexpr auto save = &cBaseDatos::GrabarColeccionBasesDatos;
  static constexpr auto remove = &cBaseDatos::BorrarPartidaBautismo;
  static constexpr auto annul = &cBaseDatos::AnularDesanularPar;
  static constexpr std::string Record::*name = &Record::NombreHijo;
  static constexpr std::string Record::*day = &Record::FechaBautismo;
  static void put(Record& r, std::int32_t book, int folio, const std::string& number) {
    r.CodLibroBautismo = r.IDLibroBautismo = book;
    r.FolioBautismo = std::to_string(folio);
    r.NumeroBautismo = number;
    r.PrimerApellidoHijo = r.PrimerApellidoPadres = "García";
    r.SegundoApellidoHijo = r.PrimerApellidoMadres = "Pérez";
    r.NombrePadres = "Juan";
    r.NombreMadres = "Ana";
    r.SexoHijo = "Hombre";
    r.EdadPadrino = r.EdadMadrina = "0";
  }
};

struct OfConfirmation {
  using Record = cConfirmacion;
  static inline const Sacramento& sacrament = CONFIRMACION;
  static inline const DescripcionAlmacen<Record>& store = ALMACEN_CONFIRMACION;
  static constexpr auto load = &cBaseDatos::GrabarBasedatosColeccionConfirmacion;
  static constexpr auto save = &cBaseDatos::GrabarColeccionBaseDatosConfirmacion;
  static constexpr auto remove = &cBaseDatos::BorrarPartidaConfirmacion;
  static constexpr auto annul = &cBaseDatos::AnularDesanularPartidaConfirmacion;
  static constexpr std::string Record::*name = &Record::Nombre;
  static constexpr std::string Record::*day = &Record::FechaConfirmacion;
  static void put(Record& r, std::int32_t book, int folio, const std::string& number) {
    r.CodLibro = book;
    r.Folio = folio;
    r.Numero = number;
    r.PrimerApellido = "García";
    r.SegundoApellido = "Pérez";
  }
};

struct OfDeath {
  using Record = cDefuncion;
  static inline const Sacramento& sacrament = DEFUNCION;
  static inline const DescripcionAlmacen<Record>& store = ALMACEN_DEFUNCION;
  static constexpr auto load = &cBaseDatos::GrabarBasedatosColeccionDefuncion;
  static constexpr auto save = &cBaseDatos::GrabarColeccionBaseDatosDefuncion;
  static constexpr auto remove = &cBaseDatos::BorrarPartidaDefuncion;
  static constexpr auto annul = &cBaseDatos::AnularDesanularPartidaDefuncion;
  static constexpr std::string Record::*name = &Record::Nombre;
  static constexpr std::string Record::*day = &Record::FechaDefuncion;
  static void put(Record& r, std::int32_t book, int folio, const std::string& number) {
    r.CodLibro = std::to_string(book);
    r.Folio = folio;
    r.Numero = number;
    r.PrimerApellido = "García";
    r.SegundoApellido = "Pérez";
  }
};

struct OfMarriage {
  using Record = cMatrimonio;
  static inline const Sacramento& sacrament = MATRIMONIO;
  static inline const DescripcionAlmacen<Record>& store = ALMACEN_MATRIMONIO;
  static constexpr auto load = &cBaseDatos::GrabarBasedatosColeccionMatrimonio;
  static constexpr auto save = &cBaseDatos::GrabarColeccionBaseDatosMatrimonio;
  static constexpr auto remove = &cBaseDatos::BorrarPartidaMatrimonio;
  static constexpr auto annul = &cBaseDatos::AnularDesanularPartidaMatrimonio;
  static constexpr std::string Record::*name = &Record::NovioNombre;
  static constexpr std::string Record::*day = &Record::FechaMatrimonio;
  static void put(Record& r, std::int32_t book, int folio, const std::string& number) {
    r.IDLibro = book;
    r.Folio = folio;
    r.Numero = number;
    r.NovioPrimerApellido = "García";
    r.NovioSegundoApellido = "Pérez";
    r.NoviaNombre = "Eva";
    r.NoviaPrimerApellido = "Sanz";
    r.NovioTResidenciaDomAct = 255;
    r.NovioEdad = r.NoviaEdad = "0";
    r.NoviaFolioBaut = 12;
  }
};

using Registers = ::testing::Types<OfBaptism, OfConfirmation, OfMarriage, OfDeath>;

/// García Pérez on 10 May 1999, new to the store; what is not known is dashes.
template <class R>
typename R::Record recordOf(const std::string& name, std::int32_t book, int folio,
                            const std::string& number) {
  typename R::Record r;
  r.*R::name = name;
  r.*R::day = "19990510";
  R::put(r, book, folio, number);
  rellenarGuiones(R::store, r);
  ponerOperacion(r, FDAPI::cCOperacion::ANADIR);
  return r;
}

/// What a test has to know of a register's entry dialog.
struct EntryKind {
  const Sacramento& s;
  int institution, book;  // lists
  Place name;             // the surnames follow
  Place where;            // a text that says where
  Place day;              // date of the sacrament
  Place born;             // list of provinces
  Place notes;
  int remarks;
  const char* person;   // table with the name
  const char* lastRow;  // table of the row that is inserted last
  const char* adds;     // how a caption begins
  const char* edits;
  const char* requestCaption = "";
  const char* bornColumn = "CodMunicipioNac";
  const char* position = ". Folio:1, número:1";  // the first one in a caption
  const char* noPosition = "";                   // in that of a new one, before there is a book
  const char* replaced = "numero se reemplazará";
  /// Question.
  const char* blanks =
      "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea continuar?";
  bool asksOthers = true;  // it, of blank texts in old and corrected ones; always of new ones
  bool asksOnce = false;
  bool annulsOld = true, annulsEdit = false;
  bool annulledIsLocked = true, notesStayOpen = true;
  const char* nextPlace = "San Pedro";  // what stands there for the next entry
  bool nextAtName = false;              // which is begun with the name
  /// The date of an old book of 1950 after its first entry, of 1961, its second, of 1970, and its
  /// third, of 1930.
  std::array<const char*, 3> bookDates = {"19610705", "19610705", "19610705"};
  const char* movesTheBook = "22/11/2026";  // the date of one begun in 1900
  int commits = 2;                          // of a new entry
  /// Makes today go where it cannot be, and names a second person.
  void (*settle)(FormDriver&) = [](FormDriver&) {};
  const char* secondPerson = "";  // as questions have it behind the first
  const char* institutionWord = "Institución";
};

using DB = frmPartidaBautismo;
inline const EntryKind BAPTISM_ENTRY{
    .s = BAUTISMO,
    .institution = DB::Institucion,
    .book = DB::Libro,
    .name = {DB::TAB_BAUTIZADO, DB::NombreHijo},
    .where = {DB::TAB_BAUTISMO, DB::ParroquiaBautismo},
    .day = {DB::TAB_BAUTISMO, DB::FechaBautismo},
    .born = {DB::TAB_BAUTIZADO, DB::ProvinciaNac},
    .notes = {DB::TAB_NOTAS, DB::NotasMarginales},
    .remarks = DB::Observaciones,
    .person = "bautismo_hijo",
    .lastRow = "bautismo_hijo",
    .adds = "Agregar partida de bautismo ",
    .edits = "Propiedades de partida de bautismo ",
    .requestCaption = "Agregar solicitud de bautismo",
    .position = ". Folio:1 número:1",
    .blanks =
        "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. ¿Desea continuar?",
    .asksOthers = false,
    .annulsEdit = true,
    .annulledIsLocked = false,
    .nextPlace = "",
    .bookDates = {"19610705", "19700705", "19700705"},
    .commits = 3,
    .settle = [](FormDriver& d) {  // a birth and a wedding are not of today
      if (d.text("adtpBautismo(1)") != "22/11/2026") return;
      d.tab("mstBautismo", DB::TAB_BAUTIZADO);
      d.type("adtpBautismo(0)", "01/11/2026");
      d.tab("mstBautismo", DB::TAB_MATRIMONIO);
      d.type("adtpBautismo(1)", "");
    }};

using DC = frmPartidaConfirmacion;
inline const EntryKind CONFIRMATION_ENTRY{.s = CONFIRMACION,
                                          .institution = DC::Institucion,
                                          .book = DC::Libro,
                                          .name = {DC::TAB_CONFIRMADO, DC::Nombre},
                                          .where = {DC::TAB_CONFIRMACION, DC::Parroquia},
                                          .day = {DC::TAB_CONFIRMACION, DC::FechaConfirmacion},
                                          .born = {DC::TAB_PERSONALES, DC::ProvinciaNac},
                                          .notes = {DC::TAB_NOTAS, DC::NotasMarginales},
                                          .remarks = DC::Observaciones,
                                          .person = "confirmacion",
                                          .lastRow = "confirmacion_bautismo",
                                          .adds = "Alta de partida de confirmación ",
                                          .edits = "Propiedades de partida de confirmación ",
                                          .requestCaption = "Nueva solicitud de confirmación",
                                          .nextPlace = "San Juan",
                                          .nextAtName = true};

using DD = frmPartidaDefuncion;
inline const EntryKind DEATH_ENTRY{.s = DEFUNCION,
                                   .institution = DD::Institucion,
                                   .book = DD::Libro,
                                   .name = {DD::TAB_DIFUNTO, DD::Nombre},
                                   .where = {DD::TAB_PARROQUIA, DD::Parroquia},
                                   .day = {DD::TAB_DIFUNTO, DD::FechaDefuncion},
                                   .born = {DD::TAB_FAMILIA, DD::ProvinciaNaturalDe},
                                   .notes = {DD::TAB_NOTAS, DD::NotasMarginales},
                                   .remarks = DD::Observaciones,
                                   .person = "defuncion",
                                   .lastRow = "Defuncion_Datos",
                                   .adds = "Alta de partida de defunción ",
                                   .edits = "Propiedades de partida de defunción ",
                                   .bornColumn = "CodMunicipioNaturalDe",
                                   .noPosition = ". Folio:, número:",
                                   .replaced = "numero se reemplazara",
                                   .asksOnce = true,
                                   .annulsOld = false,
                                   .annulsEdit = true,
                                   .notesStayOpen = false,
                                   .bookDates = {"19500101", "19500101", "19500101"},
                                   .movesTheBook = "03/02/1890",
                                   .settle = [](FormDriver& d) {  // a death is hardly ever of today
                                     if (d.text("adtpDefuncion(1)") != "22/11/2026") return;
                                     d.tab("mstDefuncion", DD::TAB_DIFUNTO);
                                     d.type("adtpDefuncion(1)", "20/11/2026");
                                   }};

using DM = frmPartidaMatrimonio;
inline const EntryKind MARRIAGE_ENTRY{
    .s = MATRIMONIO,
    .institution = DM::Institucion,
    .book = DM::Libro,
    .name = {DM::TAB_PERSONALES, DM::Nombre},
    .where = {DM::TAB_COMPROMISO, DM::Parroquia},
    .day = {DM::TAB_COMPROMISO, DM::FechaMatrimonio},
    .born = {DM::TAB_PERSONALES, DM::ProvinciaNac},
    .notes = {DM::TAB_NOTAS, DM::NotasMarginales},
    .remarks = DM::Observaciones,
    .person = "matrimonio_novios",
    .lastRow = "matrimonio_expediente",
    .adds = "Alta de partida de matrimonio ",
    .edits = "Propiedades de partida de matrimonio ",
    .requestCaption = "Nueva solicitud de matrimonio",
    .noPosition = ".",
    .replaced = "número se reemplazará",
    .nextAtName = true,
    .settle =
        [](FormDriver& d) {  // names the bride; the wedding was not today
          d.tab("mstMatrimonio", DM::TAB_PERSONALES + DM::TABS_DE_NOVIA);
          int field = DM::NOVIA + DM::Nombre;
          for (const char* bride : {"Rosa", "Sanz", "Gil"})
            d.type("txtMatrimonio(" + std::to_string(field++) + ")", bride);
          const std::string day = "adtpMatrimonio(" + std::to_string(DM::FechaMatrimonio) + ")";
          d.tab("mstMatrimonio", DM::TAB_COMPROMISO);
          if (d.text(day) == "22/11/2026") d.type(day, "21/11/2026");
        },
    .secondPerson = " y de Rosa Sanz Gil",
    .institutionWord = "institución"};

/// The same where the type of the record does not matter.
struct Register {
  const EntryKind& entry;
  std::string childTable;  // a row that the list of a book needs
  std::string childKey;
  std::string emptySign;  // an update that leaves the sign of an item read whole empty
  bool (*add)(TestWorld&, const std::string& name, std::int32_t book, int folio,
              const std::string& number);
};

inline void PrintTo(const Register& r, std::ostream* out) {
  *out << r.entry.s.palabra;
}

template <class R>
Register registerOf(const EntryKind& entry, const char* emptySign) {
  const auto& child = *R::store.propias[0];
  return {entry, child.nombre, child.columnas[0].nombre, emptySign,
          [](TestWorld& w, const std::string& name, std::int32_t book, int folio,
             const std::string& number) {
            std::vector<typename R::Record> items{recordOf<R>(name, book, folio, number)};
            bool jump = false;
            return (cBaseDatos(w.contexto).*R::save)(w.con(), items, jump);
          }};
}

inline const std::vector<Register>& registers() {
  static const std::vector<Register> all{
      registerOf<OfBaptism>(BAPTISM_ENTRY, "UPDATE Bautismo_Hijo SET Sexo=\"\""),
      registerOf<OfConfirmation>(CONFIRMATION_ENTRY, "UPDATE Confirmacion SET Parroquia=\"\""),
      registerOf<OfMarriage>(MARRIAGE_ENTRY, "UPDATE Matrimonio SET Parroquia=\"\""),
      registerOf<OfDeath>(DEATH_ENTRY, "UPDATE Defuncion SET Parroquia=\"\"")};
  return all;
}

inline std::string nameOfRegister(const ::testing::TestParamInfo<Register>& info) {
  return info.param.entry.s.palabra;
}

}  // namespace fidaleon::tests
