#include "registers/lookup/FormasDetalle.h"

#include <memory>
#include <stdexcept>

#include "core/contract/NombreYApellidos.h"
#include "registers/common/Guiones.h"
#include "registers/confirmation/AlmacenConfirmacion.h"
#include "registers/lookup/Bautizado.h"
#include "registers/marriage/AlmacenMatrimonio.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

using FDAPI::cCOrigen;
using Lineas = FormaDetalle::Lineas;

constexpr const char* SIN_LIBRO = "Aún no consta en qué libro está.";

/// Words around values, of which some may not be known.
class Redaccion {
 public:
  Redaccion(Contexto& contexto, FDAPI::Conexion& conexion)
      : fidaleon_(contexto.fidaleon()), conexion_(conexion) {}

  std::string fecha(const std::string& guardada) const {
    return enBlanco(guardada) ? GUIONES : fidaleon_->stringdate(guardada);
  }
  /// "town (province)", empty for none.
  std::string lugar(std::int32_t idMunicipio) const {
    if (idMunicipio == 0) return {};
    const std::string poblacion = fidaleon_->Poblacion(conexion_, idMunicipio);
    if (poblacion.empty()) return {};
    return poblacion + " (" + fidaleon_->PROVINCIA(conexion_, idMunicipio) + ")";
  }
  std::string naturalDe(const std::string& nombre, std::int32_t idMunicipio) const {
    return con(nombre, ", natural de ", lugar(idMunicipio));
  }
  std::string en(const std::string& texto, std::int32_t idMunicipio) const {
    const std::string donde = lugar(idMunicipio);
    return enBlanco(texto) && !donde.empty() ? donde : con(texto, ", ", donde);
  }
  /// "Se casaron el día 06/06/1998 en San Juan, Alcalá (Madrid)", as far as it is known.
  std::string cuandoYDonde(const char* que, const std::string& dia, const std::string& sitio,
                           std::int32_t idMunicipio) const {
    const std::string donde = en(sitio, idMunicipio);
    if (enBlanco(dia) && enBlanco(donde)) return GUIONES;
    return que + (enBlanco(dia) ? "" : " el día " + fecha(dia)) +
           (enBlanco(donde) ? "" : " en " + donde);
  }
  static std::string con(const std::string& texto, const char* union_, const std::string& mas) {
    return mas.empty() ? texto : texto + union_ + mas;
  }
  static std::string enLibro(const std::string& libro, const std::string& folio,
                             const std::string& numero) {
    const std::string enFolio = folio == "0" ? GUIONES : oGuiones(folio);
    if (enBlanco(libro) && enBlanco(enFolio) && enBlanco(numero)) return SIN_LIBRO;
    // Many books bear the word in their name.
    const bool conPalabra = text::upper(libro).starts_with("LIBRO ");
    return (conPalabra ? "" : "Libro ") + oGuiones(libro) + ", folio " + enFolio + ", número " +
           oGuiones(numero);
  }

 private:
  std::unique_ptr<FDAPI::cFidaleon> fidaleon_;
  FDAPI::Conexion& conexion_;
};

template <class Registro>
Registro leerSolicitud(FDAPI::Conexion& conexion, const DescripcionAlmacen<Registro>& almacen,
                       std::int32_t id) {
  const store::Recordset fila = conexion.Execute(almacen.sqlEntera(0, id));
  if (fila.EOF_()) throw std::runtime_error("Los datos de esta solicitud ya no existen.");
  Registro r;
  almacen.copiar(fila, r);
  return r;
}

Lineas deFamilia(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  const Bautizado b = leerBautizado(conexion, id);
  const Redaccion r(contexto, conexion);
  const auto abuelos = [&](const std::string& abuelo, std::int32_t municipioAbuelo,
                           const std::string& abuela, std::int32_t municipioAbuela) {
    return r.naturalDe(abuelo, municipioAbuelo) + " y " + r.naturalDe(abuela, municipioAbuela);
  };
  return {r.naturalDe(b.PadreEntero, b.CodPoblacionPadres),
          r.naturalDe(b.MadreEntera, b.CodPoblacionMadres),
          abuelos(b.AbueloPadres, b.CodPoblacionAbueloPadres, b.AbuelaPadres,
                  b.CodPoblacionAbuelaPadres),
          abuelos(b.AbueloMadres, b.CodPoblacionAbueloMadres, b.AbuelaMadres,
                  b.CodPoblacionAbuelaMadres),
          r.cuandoYDonde("Se casaron", b.FechaMatrMatrimonio, b.ParroquiaMatrimonio,
                         b.CodPoblacionMatrMatrimonio),
          r.en(b.DireccionPadresMatrimonio, b.CodPoblacionPadresMatrimonio)};
}

Lineas dePersona(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  const Bautizado b = leerBautizado(conexion, id);
  const Redaccion r(contexto, conexion);
  return {
      r.naturalDe(b.PadreEntero, b.CodPoblacionPadres),
      r.cuandoYDonde("Nació", b.FechaNacHijo, b.DireccionNacHijo, b.CodPoblacionNacHijo),
      r.naturalDe(b.MadreEntera, b.CodPoblacionMadres),
      Redaccion::enLibro(b.NombreLibro, b.FolioBautismo, b.NumeroBautismo),
      r.cuandoYDonde("Se bautizó", b.FechaBautismo, b.ParroquiaBautismo, b.CodPoblacionBautismo),
      r.en(b.DireccionPadresMatrimonio, b.CodPoblacionPadresMatrimonio)};
}

Lineas deConfirmacion(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  const auto c = leerSolicitud(conexion, ALMACEN_CONFIRMACION, id);
  const Redaccion r(contexto, conexion);
  return {c.NombrePadre,
          "Nacimiento: " + r.en(r.fecha(c.FechaNac), c.CodMunicipioNac) + "; bautismo: " +
              r.fecha(c.FechaBaut) + "; confirmación: " + r.fecha(c.FechaConfirmacion),
          c.NombreMadre,
          r.en(c.ParroquiaBaut, c.CodMunicipioBaut),
          Redaccion::enLibro(c.LibroBaut, std::to_string(c.FolioBaut), c.NumeroBaut),
          r.en(c.Domicilio, c.CodMunicipioDomicilio)};
}

/// "Luis García Pérez, DNI 12345678-Z, nacido el día 01/05/1970", as far as it is known.
std::string contrayente(const Redaccion& r, std::initializer_list<std::string> nombre,
                        const std::string& dni, const char* nacido, const std::string& dia) {
  return oGuiones(nombreYApellidos(nombre)) + (enBlanco(dni) ? "" : ", DNI " + dni) +
         (enBlanco(dia) ? "" : ", " + std::string(nacido) + " el día " + r.fecha(dia));
}

Lineas deMatrimonio(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  const auto m = leerSolicitud(conexion, ALMACEN_MATRIMONIO, id);
  const Redaccion r(contexto, conexion);
  const auto deAmbos = [](const std::string& novio, const std::string& novia) {
    return "Novio: " + novio + "\r\nNovia: " + novia;
  };
  const auto bautismo = [&](const std::string& dia, const std::string& parroquia,
                            std::int32_t municipio, const std::string& libro, std::int32_t folio,
                            const std::string& numero) {
    const std::string cuando = r.cuandoYDonde("se bautizó", dia, parroquia, municipio);
    return (enBlanco(cuando) ? "" : cuando + ". ") +
           Redaccion::enLibro(libro, std::to_string(folio), numero);
  };
  return {contrayente(r, {m.NovioNombre, m.NovioPrimerApellido, m.NovioSegundoApellido}, m.NovioDNI,
                      "nacido", m.NovioFechaNac),
          contrayente(r, {m.NoviaNombre, m.NoviaPrimerApellido, m.NoviaSegundoApellido}, m.NoviaDNI,
                      "nacida", m.NoviaFechaNac),
          deAmbos(m.NovioNombrePadre + " y " + m.NovioNombreMadre,
                  m.NoviaNombrePadre + " y " + m.NoviaNombreMadre),
          deAmbos(bautismo(m.NovioFechaBaut, m.NovioParroquiaBaut, m.NovioIDMunicipioBaut,
                           m.NovioLibroBaut, m.NovioFolioBaut, m.NovioNumeroBaut),
                  bautismo(m.NoviaFechaBaut, m.NoviaParroquiaBaut, m.NoviaIDMunicipioBaut,
                           m.NoviaLibroBaut, m.NoviaFolioBaut, m.NoviaNumeroBaut)),
          r.fecha(m.FechaMatrimonio) + "; padrino: " + m.Padrino + "; madrina: " + m.Madrina,
          GUIONES};
}

constexpr FormaDetalle::Etiquetas DE_FAMILIA{"Padre:",
                                             "Madre:",
                                             "Abuelos paternos:",
                                             "Abuelos maternos:",
                                             "Matrimonio:",
                                             "Residencia actual:"};
constexpr FormaDetalle::Etiquetas DE_PERSONA{
    "Padre:",           "Datos del nacimiento:",  "Madre:",
    "Datos del libro:", "Datos de la parroquia:", "Residencia actual:"};
constexpr FormaDetalle::Etiquetas DE_CONFIRMACION{
    "Padre:",          "Fechas importantes:",          "Madre:",
    "Bautizado/a en:", "Datos del libro de bautismo:", "Residencia actual:"};
constexpr FormaDetalle::Etiquetas DE_MATRIMONIO{"Nombre, DNI y fecha de nacimiento del novio:",
                                                "Nombre, DNI y fecha de nacimiento de la novia:",
                                                "Padres de los contrayentes:",
                                                "Datos de bautismo de los contrayentes:",
                                                "Fecha de matrimonio, padrino y madrina:",
                                                "No se usa:"};

constexpr FormaDetalle FORMAS[] = {
    {cCOrigen::LISTAPARTIDASBAUTISMO, "Detalles de bautismo de un hermano del bautizado.",
     DE_FAMILIA, deFamilia, "CargarDetalleBautismo"},
    {cCOrigen::SOLICITUDBAUTISMO, "Detalles de la solicitud de bautismo.", DE_FAMILIA, deFamilia,
     "CargarDetalleBautismo"},
    {cCOrigen::LISTAPARTIDASCONFIRMACION, "Detalles de bautismo del confirmado.", DE_PERSONA,
     dePersona, "CargarDetalleBautismo"},
    {cCOrigen::LISTAPARTIDASMatrimonio, "Detalles de bautismo del novio/a.", DE_PERSONA, dePersona,
     "CargarDetalleBautismo"},
    {cCOrigen::LISTAPARTIDASDEFUNCION, "Detalles de bautismo del difunto.", DE_PERSONA, dePersona,
     "CargarDetalleBautismo"},
    {cCOrigen::SOLICITUDCONFIRMACION, "Detalles de la solicitud de confirmación.", DE_CONFIRMACION,
     deConfirmacion, "CargarDetalleConfirmacion"},
    {cCOrigen::SOLICITUDMATRIMONIO, "Detalles de la solicitud de matrimonio.", DE_MATRIMONIO,
     deMatrimonio, "CargarDetalleMatrimonio"},
};

}  // namespace

const FormaDetalle* formaDetalle(cCOrigen origen) {
  for (const FormaDetalle& f : FORMAS)
    if (f.origen == origen) return &f;
  return nullptr;
}

}  // namespace fidaleon
