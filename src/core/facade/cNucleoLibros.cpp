#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "core/statements/Sentencia.h"
#include "registers/books/OperacionesLibro.h"
#include "registers/books/frmAltaLibro.h"
#include "registers/books/frmPropiedadesLibro.h"

namespace fidaleon {

namespace {

/// What the user gets to see of a book that is open elsewhere, in part or whole.
struct AperturaDeLibro {
  SesionBloqueos::Apertura modo = SesionBloqueos::Apertura::NORMAL;
  bool sinNombre = false;
};

/// Name and name type rest on what others may hold; all else on the book's own record alone.
AperturaDeLibro bloquearLibro(SesionBloqueos& sesion, const Sacramento& s, std::int32_t lngLibro) {
  const std::string delLibro =
      sentencia(s, " FROM {Libros} WHERE {IDLibro}=") + std::to_string(lngLibro);
  const auto definirLibro = [&] {
    sesion.registro(s.tablaLibros, lngLibro, sentencia(s, "SELECT {IDLibro}") + delLibro);
  };
  sesion.tablasCompartidas({"Libros_TipoNombre"});
  sesion.registrosCompartidos("Libros_Formato", "SELECT CodFormato" + delLibro);
  sesion.registrosCompartidos("Institucion", "SELECT CodInstitucion" + delLibro);
  definirLibro();
  long error = sesion.intentarParaAbrir("El nombre del libro y su tipo no se pueden cambiar");
  AperturaDeLibro como;
  como.sinNombre = error == FDAPI::BloqueoRegistro || error == FDAPI::BloqueoCompartido;
  if (como.sinNombre) {
    definirLibro();
    error = sesion.intentarParaAbrir();
  }
  if (error == FDAPI::BloqueoRegistroNoExiste || error == FDAPI::BloqueoSesion)
    como.modo = SesionBloqueos::Apertura::NINGUNA;
  else if (error != FDAPI::BloqueoNinguno)
    como.modo = SesionBloqueos::Apertura::SOLO_LECTURA;
  return como;
}

}  // namespace

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
    const CrearPropiedadesLibro crear = s ? propiedadesDeLibro(*s) : nullptr;
    if (!crear) return;
    auto dialogo = crear(contexto_);
    SesionBloqueos sesion(contexto_, conBaseDatos);
    const AperturaDeLibro como = bloquearLibro(sesion, *s, lngLibro);
    sesion.mostrar(como.modo, [&](const auto& aviso) {
      contexto_.gobjConfig = &objConfig;
      if (dialogo->isUnloaded()) dialogo = crear(contexto_);
      dialogo->conBaseDatos = &conBaseDatos;
      dialogo->lngLibro = lngLibro;
      dialogo->Load();
      if (como.sinNombre) dialogo->sinNombre();
      return dialogo->open(aviso);
    });
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
