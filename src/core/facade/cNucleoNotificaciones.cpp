#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "documents/frmInfNotConf.h"

namespace fidaleon {

void cNucleo::ImprimirPartidaSinLibro(FDAPI::Conexion& conBaseDatos,
                                      FDAPI::Conexion& conBaseInformes,
                                      const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "ImprimirPartidaSinLibro", [&] {
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Institucion", "Municipio", "Provincia"});
    if (!sesion.efectuar()) return;
    contexto_.gobjConfig = &objConfig;
    frmInfNotConf dialogo(contexto_);
    dialogo.conBaseDatos = &conBaseDatos;
    dialogo.conInformes = &conBaseInformes;
    dialogo.Show();
  });
}

}  // namespace fidaleon
