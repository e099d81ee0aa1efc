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
};

}  // namespace

frmPropiedadesLibroBautismo::frmPropiedadesLibroBautismo(Contexto& contexto)
    : frmPropiedadesLibro(contexto, BAUTISMO,
                          std::make_unique<PartidasDe<ListaBautismo>>(contexto)) {}

}  // namespace fidaleon
