#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "core/statements/Sentencia.h"
#include "registers/cBaseDatos.h"
#include "registers/common/EliminarPartida.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;

namespace {

using Alternar = bool (cBaseDatos::*)(FDAPI::Conexion&, std::int32_t);

/// Null for what is no sacrament.
Alternar alternarDe(const Sacramento* s) {
  if (s == &BAUTISMO) return &cBaseDatos::AnularDesanularPar;
  if (s == &CONFIRMACION) return &cBaseDatos::AnularDesanularPartidaConfirmacion;
  if (s == &MATRIMONIO) return &cBaseDatos::AnularDesanularPartidaMatrimonio;
  if (s == &DEFUNCION) return &cBaseDatos::AnularDesanularPartidaDefuncion;
  return nullptr;
}

}  // namespace

void cNucleo::NuevaPartida(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                           const std::string& strNodo) {
  operacion(contexto_, "NuevaPartida", [&] {
    InicializaConfiguracion(objConfig);
    altaPartida(conBaseDatos, objConfig, strNodo, cCOperacion::ANADIR,
                " Nuevo = True AND Cerrado = False");
  });
}

void cNucleo::AntiguaPartida(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                             const std::string& strNodo) {
  operacion(contexto_, "AntiguaPartida", [&] {
    altaPartida(conBaseDatos, objConfig, strNodo, cCOperacion::ANTIGUA, "Nuevo = False");
  });
}

void cNucleo::altaPartida(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                          const std::string& strNodo, cCOperacion operacionPartida,
                          const char* cuales) {
  const Sacramento* s = sacramentoDeNodo(strNodo, "Partidas");
  const CrearPartida crear = dialogoDePartida(s);
  if (!crear) return;
  SesionBloqueos sesion(contexto_, conBaseDatos);
  sesion.tablasCompartidas({"Institucion", "Provincia", "Municipio"});
  sesion.registros(s->tablaLibros, sentencia(*s, "SELECT {IDLibro} FROM {Libros} WHERE ") + cuales);
  sesion.tabla(s->tablaPartidas);
  if (!sesion.efectuar()) return;
  contexto_.gobjConfig = &objConfig;
  const auto dialogo = crear(contexto_);
  mostrarPartida(contexto_, *dialogo, conBaseDatos, {0, operacionPartida, cCOrigen::PRINCIPAL});
}

void cNucleo::PropiedadesPartida(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                                 const FDAPI::cConfig& objConfig, const std::string& strNodo) {
  operacion(contexto_, "PropiedadesPartida", [&] {
    const Sacramento* s = sacramentoDeNodo(strNodo, "Partidas");
    const CrearPartida crear = dialogoDePartida(s);
    if (!crear) return;
    const std::string libro =
        sentencia(*s, "SELECT CodLibro FROM {Partidas} WHERE {IDPartida}=") + std::to_string(lngID);
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Provincia", "Municipio"});
    sesion.registrosCompartidos(
        "Institucion",
        sentencia(*s, "SELECT CodInstitucion FROM {Libros} WHERE {IDLibro} IN (") + libro + ")");
    sesion.registrosCompartidos(s->tablaLibros, libro);
    sesion.registro(s->tablaPartidas, lngID, existePartida(*s, lngID));
    sesion.mostrar(sesion.efectuarParaAbrir(), [&](const auto& aviso) {
      contexto_.gobjConfig = &objConfig;
      return mostrarPartida(contexto_, *crear(contexto_), conBaseDatos,
                            {lngID, cCOperacion::EDITAR, cCOrigen::PRINCIPAL}, aviso);
    });
  });
}

void cNucleo::AnularPartidas(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                             const FDAPI::cConfig&, const std::string& strTextDescription,
                             const PreguntaAnulacion& preguntar) {
  operacion(contexto_, "AnularPartidas", [&] {
    const Sacramento* s = sacramentoDeNodo(strTextDescription, "Partidas");
    const Alternar alternar = alternarDe(s);
    if (!alternar) return;
    anularPartida(contexto_, conBaseDatos, *s, lngID, preguntar, [&] {
      cBaseDatos almacen(contexto_);
      (almacen.*alternar)(conBaseDatos, lngID);
    });
  });
}

void cNucleo::EliminarPartida(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                              const FDAPI::cConfig& objConfig, const std::string& strNodo) {
  const Sacramento* s = sacramentoDeNodo(strNodo, "Partidas");
  if (!s || !formaPartida(*s)) return;
  contexto_.gobjConfig = &objConfig;
  eliminarPartida(contexto_, conBaseDatos, lngID, *s);
}

void cNucleo::BorrarPartidaBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t lngID) {
  borrarPreguntando(contexto_, conBaseDatos, lngID, BAUTISMO);
}

void cNucleo::BorrarPartidaConfirmacion(FDAPI::Conexion& conBaseDatos, std::int32_t lngID) {
  borrarPreguntando(contexto_, conBaseDatos, lngID, CONFIRMACION);
}

void cNucleo::BorrarPartidaMatrimonio(FDAPI::Conexion& conBaseDatos, std::int32_t lngID) {
  borrarPreguntando(contexto_, conBaseDatos, lngID, MATRIMONIO);
}

void cNucleo::BorrarPartidaDefuncion(FDAPI::Conexion& conBaseDatos, std::int32_t lngID) {
  borrarPreguntando(contexto_, conBaseDatos, lngID, DEFUNCION);
}

}  // namespace fidaleon
