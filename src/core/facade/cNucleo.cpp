#include "core/facade/cNucleo.h"

#include "core/facade/Operacion.h"
#include "setup/SelecEncargado.h"
#include "setup/frmDatosSetup.h"

namespace fidaleon {

cNucleo::cNucleo(Entorno& entorno) : contexto_(entorno) {
  contexto_.tituloAplicacion = "Fidaleon";
  contexto_.ficheroAyuda =
      entorno.settings.read("Fidaleon", "Principal", "Path") + "\\Fidaleon.chm";
}

void cNucleo::InicializaConfiguracion(const FDAPI::cConfig& objConfig) {
  contexto_.tituloAplicacion = objConfig.AppTitle;
  contexto_.ficheroAyuda = objConfig.HelpPath;
  contexto_.gobjConfig = &objConfig;
}

void cNucleo::DatosSetup(FDAPI::Conexion& conFidaleon, bool& result) {
  result = false;
  operacion(contexto_, "DatosSetup", [&] {
    frmDatosSetup dialogo(contexto_);
    dialogo.conBaseDatos = &conFidaleon;
    dialogo.Show();
    result = dialogo.blnResultado;
  });
}

void cNucleo::SelecEncargado(FDAPI::Conexion& conBaseDatos, const std::string& Sacramento,
                             std::int32_t IDPartida, std::string& strFechaInf,
                             std::string& result) {
  result.clear();
  strFechaInf = contexto_.hoy();
  operacion(contexto_, "SelecEncargado", [&] {
    fidaleon::SelecEncargado(contexto_, conBaseDatos, Sacramento, IDPartida, strFechaInf, result);
  });
}

}  // namespace fidaleon
