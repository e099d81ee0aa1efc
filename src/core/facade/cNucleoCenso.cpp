#include "census/Operaciones.h"
#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"

namespace fidaleon {

void cNucleo::NuevoEmpadronado(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "NuevoEmpadronado", [&] {
    InicializaConfiguracion(objConfig);
    censo::NuevoEmpadronado(contexto_, conBaseDatos);
  });
}

void cNucleo::EditaEmpadronado(FDAPI::Conexion& conBaseDatos, std::int32_t mlngRegistroPadron,
                               const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "EditaEmpadronado", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EditaEmpadronado(contexto_, conBaseDatos, mlngRegistroPadron);
  });
}

void cNucleo::EliminaEmpadronado(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                                 const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "EliminaEmpadronado", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EliminaEmpadronado(contexto_, conBaseDatos, lngID);
  });
}

void cNucleo::NuevoColaborador(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                               bool blnOcultar) {
  operacion(contexto_, "NuevoColaborador", [&] {
    InicializaConfiguracion(objConfig);
    censo::NuevoColaborador(contexto_, conBaseDatos, blnOcultar);
  });
}

void cNucleo::EditaColaborador(FDAPI::Conexion& conBaseDatos, std::int32_t mlngRegistroPadron,
                               const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "EditaColaborador", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EditaColaborador(contexto_, conBaseDatos, mlngRegistroPadron);
  });
}

void cNucleo::EliminaColaborador(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                                 const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "EliminaColaborador", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EliminaColaborador(contexto_, conBaseDatos, lngID);
  });
}

void cNucleo::NuevaActividad(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                             bool blnOcultar) {
  operacion(contexto_, "NuevaActividad", [&] {
    InicializaConfiguracion(objConfig);
    censo::NuevaActividad(contexto_, conBaseDatos, blnOcultar);
  });
}

void cNucleo::EditaActividad(FDAPI::Conexion& conBaseDatos, std::int32_t mlngRegistroActividad,
                             const FDAPI::cConfig& objConfig, bool blnOcultar) {
  operacion(contexto_, "EditaActividad", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EditaActividad(contexto_, conBaseDatos, mlngRegistroActividad, blnOcultar);
  });
}

void cNucleo::EliminaActividad(FDAPI::Conexion& conBaseDatos, std::int32_t lngIDActividad,
                               const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "EliminaActividad", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EliminaActividad(contexto_, conBaseDatos, lngIDActividad);
  });
}

void cNucleo::NuevoCargo(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                         bool blnNuevaInstancia) {
  operacion(contexto_, "NuevoCargo", [&] {
    InicializaConfiguracion(objConfig);
    censo::NuevoCargo(contexto_, conBaseDatos, blnNuevaInstancia);
  });
}

void cNucleo::EditaCargo(FDAPI::Conexion& conBaseDatos, std::int32_t lngIDCargo,
                         const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "EditaCargo", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EditaCargo(contexto_, conBaseDatos, lngIDCargo);
  });
}

void cNucleo::EliminaCargo(FDAPI::Conexion& conBaseDatos, std::int32_t lngIDCargo,
                           const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "EliminaCargo", [&] {
    contexto_.gobjConfig = &objConfig;
    censo::EliminaCargo(contexto_, conBaseDatos, lngIDCargo);
  });
}

}  // namespace fidaleon
