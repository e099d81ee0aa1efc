#include <array>

#include "registers/baptism/TablasBautismo.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/cBaseDatos.h"

namespace fidaleon {

namespace {

struct ListaBautismo {
  using Registro = cBautismo;
  using Coleccion = ColeccionBautismo;
  using Dialogo = frmPartidaBautismo;
  static constexpr FDAPI::cCOrigen ORIGEN = FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO;

  static std::int32_t id(const cBautismo& b) { return b.IDBautismo; }
  static bool& anulada(cBautismo& b) { return b.AnuladaBautismo; }
  static bool completa(const cBautismo& b) { return !b.SexoHijo.empty(); }
  static std::vector<std::string> celdas(const cBautismo& b, FDAPI::cFidaleon& fidaleon) {
    return {b.FolioBautismo,      b.NumeroBautismo,      b.NombreHijo,
            b.PrimerApellidoHijo, b.SegundoApellidoHijo, fidaleon.stringdate(b.FechaBautismo)};
  }
  static bool cargar(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngLibro,
                     ColeccionBautismo& coleccion) {
    return cBaseDatos(contexto).GrabarBasedatosColeccion(conBaseDatos, lngLibro, coleccion);
  }
  static bool completar(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                        ColeccionBautismo& coleccion, std::size_t posicion) {
    cBautismo& b = coleccion.at(posicion);
    if (!cBaseDatos(contexto).ActualizarColeccion(conBaseDatos, b.IDBautismo, coleccion, posicion))
      return false;
    // Where the table holds an empty one, the entry would be read again over what was changed.
    if (b.SexoHijo.empty()) b.SexoHijo = "---";
    return true;
  }
  static bool guardar(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                      ColeccionBautismo& coleccion) {
    bool blnSalto = false;
    return cBaseDatos(contexto).GrabarColeccionBasesDatos(conBaseDatos, coleccion, blnSalto);
  }
  static bool retirarAMedias(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                             ColeccionBautismo& coleccion) {
    return cBaseDatos(contexto).RetirarAMedias(conBaseDatos, coleccion);
  }
  static bool mismoLugar(const cBautismo& a, const cBautismo& b) {
    return a.FolioBautismo == b.FolioBautismo && a.NumeroBautismo == b.NumeroBautismo;
  }
  static void apuntar(const cBautismo& b, Apunte& apunte) {
    for (const Tabla<cBautismo>* tabla : TABLAS) apunte.poner(*tabla, b);
    for (const auto& [nombre, miembro] : CLAVES) apunte.poner(nombre, b.*miembro);
    for (const auto& [nombre, miembro] : SIGNOS) apunte.poner(nombre, b.*miembro);
  }
  static void leer(const Apunte& apunte, cBautismo& b) {
    for (const Tabla<cBautismo>* tabla : TABLAS) apunte.leer(*tabla, b);
    for (const auto& [nombre, miembro] : CLAVES)
      b.*miembro = static_cast<std::int32_t>(apunte.numero(nombre));
    for (const auto& [nombre, miembro] : SIGNOS) b.*miembro = apunte.numero(nombre) != 0;
  }

  static constexpr std::array TABLAS{&TABLA_BAUTISMO, &TABLA_HIJO, &TABLA_PADRES, &TABLA_MADRES,
                                     &TABLA_MATRIMONIO};
  static constexpr std::array<std::pair<const char*, std::int32_t cBautismo::*>, 6> CLAVES{
      {{"IDBautismo", &cBautismo::IDBautismo},
       {"IDLibroBautismo", &cBautismo::IDLibroBautismo},
       {"IDPadres", &cBautismo::IDPadres},
       {"IDMadres", &cBautismo::IDMadres},
       {"IDMatrimonio", &cBautismo::IDMatrimonio},
       {"CodBautismo", &cBautismo::CodBautismo}}};
  static constexpr std::array<std::pair<const char*, bool cBautismo::*>, 4> SIGNOS{
      {{"Guardada", &cBautismo::Estado},
       {"CambioPadre", &cBautismo::CambioPadre},
       {"CambioMadre", &cBautismo::CambioMadre},
       {"CambioMatrimonio", &cBautismo::CambioMatrimonio}}};
};

}  // namespace

frmPropiedadesLibroBautismo::frmPropiedadesLibroBautismo(Contexto& contexto)
    : frmPropiedadesLibro(contexto, BAUTISMO,
                          std::make_unique<PartidasDe<ListaBautismo>>(contexto)) {}

}  // namespace fidaleon
