#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "registers/requests/BloqueoSolicitud.h"
#include "registers/requests/EliminarSolicitud.h"
#include "registers/requests/frmSolicitudes.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void cNucleo::NuevaSolicitud(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                             const std::string& strNodo) {
  operacion(contexto_, "NuevaSolicitud", [&] {
    InicializaConfiguracion(objConfig);
    const Sacramento* s = sacramentoDeNodo(strNodo, "Solicitudes");
    const CrearPartida crear = dialogoDePartida(s);
    if (!crear) return;
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Institucion", "Provincia", "Municipio"});
    sesion.tabla(s->tablaPartidas);
    if (!sesion.efectuar()) return;
    const auto dialogo = crear(contexto_);
    mostrarPartida(contexto_, *dialogo, conBaseDatos, {0, cCOperacion::ANADIRSOLICITUD, {}});
  });
}

void cNucleo::PropiedadesSolicitudes(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                                     const FDAPI::cConfig& objConfig, const std::string& strNodo) {
  operacion(contexto_, "PropiedadesSolicitudes", [&] {
    const Sacramento* s = sacramentoDeNodo(strNodo, "Solicitudes");
    const CrearPartida crear = dialogoDePartida(s);
    if (!crear) return;
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Institucion", "Provincia", "Municipio"});
    bloquearSolicitud(sesion, *s, lngID);
    sesion.mostrar(sesion.efectuarParaAbrir(), [&](const auto& aviso) {
      contexto_.gobjConfig = &objConfig;
      return mostrarPartida(contexto_, *crear(contexto_), conBaseDatos,
                            {lngID, cCOperacion::EDITARSOLICITUD, {}}, aviso);
    });
  });
}

void cNucleo::EliminarSolicitud(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                                const FDAPI::cConfig&, const std::string& strNodo) {
  if (sacramentoDeNodo(strNodo, "Solicitudes") != &BAUTISMO) return;
  eliminarSolicitudBautismo(contexto_, conBaseDatos, lngID);
}

void cNucleo::ImportarSolicitudes(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                                  const std::string& strNodo) {
  operacion(contexto_, "ImportarSolicitudes", [&] {
    InicializaConfiguracion(objConfig);
    const OrigenSolicitudes* origen = origenSolicitudes(sacramentoDeNodo(strNodo, "Solicitudes"));
    if (!origen) return;
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Institucion"});
    if (!sesion.efectuar()) return;
    if (conBaseDatos.Execute(origen->sqlAlguna).RecordCount() == 0)
      return forms::warn(contexto_.ui(), "¡No hay solicitudes para importar!");
    frmSolicitudes dialogo(contexto_);
    dialogo.conBaseDatos = &conBaseDatos;
    dialogo.Origen = origen->origen;
    dialogo.Show();
  });
}

}  // namespace fidaleon
