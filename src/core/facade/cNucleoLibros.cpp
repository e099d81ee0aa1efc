#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "registers/books/OperacionesLibro.h"
#include "registers/books/frmAltaLibro.h"
#include "registers/books/frmPropiedadesLibro.h"

namespace fidaleon {

void cNucleo::NuevoLibro(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                         const std::string& strNodoPadre) {
  operacion(contexto_, "NuevoLibro", [&] {
    const Sacramento* s = sacramentoDeNodo(strNodoPadre, "Libros");
    if (!s) return;
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Institucion", "Libros_Formato", "Libros_TipoNombre"});
    sesion.tabla(s->tablaLibros);
    if (!sesion.efectuar()) return;
    contexto_.gobjConfig = &objConfig;
    const auto dialogo = crearAltaLibro(contexto_, *s);
    dialogo->conBaseDatos = &conBaseDatos;
    dialogo->Show();
  });
}

void cNucleo::PropiedadesLibro(FDAPI::Conexion& conBaseDatos, std::int32_t lngLibro,
                               const FDAPI::cConfig& objConfig, const std::string& strNodoPadre) {
  operacion(contexto_, "PropiedadesLibro", [&] {
    const Sacramento* s = sacramentoDeNodo(strNodoPadre, "Libros");
    const auto dialogo = s ? crearPropiedadesLibro(contexto_, *s) : nullptr;
    if (!dialogo) return;
    const std::string delLibro = std::string(" FROM ") + s->tablaLibros + " WHERE " +
                                 s->claveLibro + "=" + std::to_string(lngLibro);
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Libros_TipoNombre"});
    sesion.registrosCompartidos("Libros_Formato", "SELECT CodFormato" + delLibro);
    sesion.registrosCompartidos("Institucion", "SELECT CodInstitucion" + delLibro);
    sesion.registro(s->tablaLibros, lngLibro, std::string("SELECT ") + s->claveLibro + delLibro);
    const long error = sesion.intentar();
    if (error == FDAPI::BloqueoRegistroNoExiste || error == FDAPI::BloqueoSesion) return;
    contexto_.gobjConfig = &objConfig;
    dialogo->conBaseDatos = &conBaseDatos;
    dialogo->lngLibro = lngLibro;
    dialogo->Load();
    if (error == FDAPI::BloqueoRegistro || error == FDAPI::BloqueoCompartido)
      dialogo->sinNombre();
    else if (error != FDAPI::BloqueoNinguno)
      dialogo->soloLectura();
    dialogo->Show();
  });
}

void cNucleo::cerrarLiBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                               const FDAPI::cConfig&) {
  cerrarLibro(contexto_, conBaseDatos, IDlng, BAUTISMO);
}

void cNucleo::cerrarLiconfirmacion(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                                   const FDAPI::cConfig&) {
  cerrarLibro(contexto_, conBaseDatos, IDlng, CONFIRMACION);
}

void cNucleo::cerrarLiMatrimonio(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                                 const FDAPI::cConfig&) {
  cerrarLibro(contexto_, conBaseDatos, IDlng, MATRIMONIO);
}

void cNucleo::cerrarLiDefuncion(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                                const FDAPI::cConfig&) {
  cerrarLibro(contexto_, conBaseDatos, IDlng, DEFUNCION);
}

void cNucleo::EliminarLibro(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                            const FDAPI::cConfig&, const std::string& strNodoPadre) {
  if (const Sacramento* s = sacramentoDeNodo(strNodoPadre, "Libros"))
    eliminarLibro(contexto_, conBaseDatos, IDlng, *s);
}

}  // namespace fidaleon
