#pragma once
// What tests have to know of each register, so that one suite holds for all of them.

#include <ostream>
#include <variant>

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
  using Book = frmPropiedadesLibroBautismo;
  static inline const Sacramento& sacrament = BAUTISMO;
  static inline const DescripcionAlmacen<Record>& store = ALMACEN_BAUTISMO;
  static constexpr auto load = &cBaseDatos::GrabarBasedatosColeccion;
  static constexpr auto save = &cBaseDatos::GrabarColeccionBasesDatos;
  static constexpr auto insert = &cBaseDatos::AltaPartidaBautismo;
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
  using D = frmPartidaBautismo;
  static constexpr Place nameField{D::TAB_BAUTIZADO, D::NombreHijo};
  static constexpr Place dayField{D::TAB_BAUTISMO, D::FechaBautismo};
  static constexpr const char* movesTheBook = "22/11/2026";  // the date of one begun in 1900
  static constexpr const char* replaced = "numero se reemplazará";
  static constexpr const char* blanks =
      "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. ¿Desea continuar?";
  static constexpr bool blanksOfOldToo = false;
  /// A birth and a wedding are not of today.
  static void settle(FormDriver& d) {
    if (d.text("adtpBautismo(1)") != "22/11/2026") return;
    d.tab("mstBautismo", D::TAB_BAUTIZADO);
    d.type("adtpBautismo(0)", "01/11/2026");
    d.tab("mstBautismo", D::TAB_MATRIMONIO);
    d.type("adtpBautismo(1)", "");
  }
};

struct OfConfirmation {
  using Record = cConfirmacion;
  using Book = frmPropiedadesLibroConfirmacion;
  static inline const Sacramento& sacrament = CONFIRMACION;
  static inline const DescripcionAlmacen<Record>& store = ALMACEN_CONFIRMACION;
  static constexpr auto load = &cBaseDatos::GrabarBasedatosColeccionConfirmacion;
  static constexpr auto save = &cBaseDatos::GrabarColeccionBaseDatosConfirmacion;
  static constexpr auto insert = &cBaseDatos::AltaPartidaConfirmacion;
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
  using D = frmPartidaConfirmacion;
  static constexpr Place nameField{D::TAB_CONFIRMADO, D::Nombre};
  static constexpr Place dayField{D::TAB_CONFIRMACION, D::FechaConfirmacion};
  static constexpr const char* movesTheBook = "22/11/2026";  // the date of one begun in 1900
  static constexpr const char* replaced = "numero se reemplazará";
  static constexpr const char* blanks =
      "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea continuar?";
  static constexpr bool blanksOfOldToo = true;
  static void settle(FormDriver&) {}
};

struct OfDeath {
  using Record = cDefuncion;
  using Book = frmPropiedadesLibroDefuncion;
  static inline const Sacramento& sacrament = DEFUNCION;
  static inline const DescripcionAlmacen<Record>& store = ALMACEN_DEFUNCION;
  static constexpr auto load = &cBaseDatos::GrabarBasedatosColeccionDefuncion;
  static constexpr auto save = &cBaseDatos::GrabarColeccionBaseDatosDefuncion;
  static constexpr auto insert = &cBaseDatos::AltaPartidaDefuncion;
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
  using D = frmPartidaDefuncion;
  static constexpr Place nameField{D::TAB_DIFUNTO, D::Nombre};
  static constexpr Place dayField{D::TAB_DIFUNTO, D::FechaDefuncion};
  static constexpr const char* movesTheBook = "03/02/1890";  // the date of one begun in 1900
  static constexpr const char* replaced = "numero se reemplazara";
  static constexpr const char* blanks = OfConfirmation::blanks;
  static constexpr bool blanksOfOldToo = true;
  /// A death is hardly ever of today.
  static void settle(FormDriver& d) {
    if (d.text("adtpDefuncion(1)") != "22/11/2026") return;
    d.tab("mstDefuncion", D::TAB_DIFUNTO);
    d.type("adtpDefuncion(1)", "20/11/2026");
  }
};

struct OfMarriage {
  using Record = cMatrimonio;
  using Book = frmPropiedadesLibroMatrimonio;
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
  using D = frmPartidaMatrimonio;
  static constexpr Place nameField{D::TAB_PERSONALES, D::Nombre};
  static constexpr Place dayField{D::TAB_COMPROMISO, D::FechaMatrimonio};
  static constexpr const char* movesTheBook = "22/11/2026";  // the date of one begun in 1900
  static constexpr const char* replaced = "número se reemplazará";
  static constexpr const char* blanks = OfConfirmation::blanks;
  static constexpr bool blanksOfOldToo = true;
  /// Names the bride; the wedding was not today.
  static void settle(FormDriver& d) {
    d.tab("mstMatrimonio", D::TAB_PERSONALES + D::TABS_DE_NOVIA);
    int field = D::NOVIA + D::Nombre;
    for (const char* bride : {"Rosa", "Sanz", "Gil"})
      d.type("txtMatrimonio(" + std::to_string(field++) + ")", bride);
    const std::string day = "adtpMatrimonio(" + std::to_string(D::FechaMatrimonio) + ")";
    d.tab("mstMatrimonio", D::TAB_COMPROMISO);
    if (d.text(day) == "22/11/2026") d.type(day, "21/11/2026");
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

/// The same where the type of the record does not matter.
struct Register {
  const Sacramento& sacrament;
  std::string dialog;      // of an entry
  std::string properties;  // of a book
  Place nameField, dayField;
  const char* blanks;
  bool blanksOfOldToo;
  const char* movesTheBook;
  const char* replaced;
  /// Makes today go where it cannot be, and names a second person.
  void (*settle)(FormDriver&);
  std::string childTable;  // a row that the list of a book needs
  std::string childKey;
  std::string emptySign;  // an update that leaves the sign of an item read whole empty
  bool (*add)(TestWorld&, const std::string& name, std::int32_t book, int folio,
              const std::string& number);
  std::unique_ptr<frmPropiedadesLibro> (*openBook)(Contexto&);
};

inline void PrintTo(const Register& r, std::ostream* out) {
  *out << r.sacrament.palabra;
}

template <class R>
Register registerOf(const char* emptySign) {
  const std::string word = R::sacrament.palabra;
  const auto& child = *R::store.propias[0];
  return {R::sacrament,
          "frmPartida" + word,
          "frmPropiedadesLibro" + word,
          R::nameField,
          R::dayField,
          R::blanks,
          R::blanksOfOldToo,
          R::movesTheBook,
          R::replaced,
          &R::settle,
          child.nombre,
          child.columnas[0].nombre,
          emptySign,
          [](TestWorld& w, const std::string& name, std::int32_t book, int folio,
             const std::string& number) {
            std::vector<typename R::Record> items{recordOf<R>(name, book, folio, number)};
            bool jump = false;
            return (cBaseDatos(w.contexto).*R::save)(w.con(), items, jump);
          },
          [](Contexto& c) -> std::unique_ptr<frmPropiedadesLibro> {
            return std::make_unique<typename R::Book>(c);
          }};
}

inline const std::vector<Register>& registers() {
  static const std::vector<Register> all{
      registerOf<OfBaptism>("UPDATE Bautismo_Hijo SET Sexo=\"\""),
      registerOf<OfConfirmation>("UPDATE Confirmacion SET Parroquia=\"\""),
      registerOf<OfMarriage>("UPDATE Matrimonio SET Parroquia=\"\""),
      registerOf<OfDeath>("UPDATE Defuncion SET Parroquia=\"\"")};
  return all;
}

inline std::string nameOfRegister(const ::testing::TestParamInfo<Register>& info) {
  return info.param.sacrament.palabra;
}

}  // namespace fidaleon::tests
