#include "core/contract/Bloqueos.h"

namespace fidaleon {

FDAPI::DefinicionBloqueo bloqueoDeTabla(const char* tabla) {
  FDAPI::DefinicionBloqueo definicion;
  definicion.strTabla = tabla;
  return definicion;
}

FDAPI::DefinicionBloqueo bloqueoDeTablaCompartida(const char* tabla) {
  FDAPI::DefinicionBloqueo definicion = bloqueoDeTabla(tabla);
  definicion.blnBloqueoParcialTabla = true;
  return definicion;
}

FDAPI::DefinicionBloqueo bloqueoDeRegistro(FDAPI::Conexion& conexion, const char* tabla,
                                           const char* clave, std::int32_t id) {
  return bloqueoDeRegistro(conexion, tabla, id,
                           std::string("SELECT ") + clave + " FROM " + tabla + " WHERE " + clave +
                               "=" + std::to_string(id));
}

FDAPI::DefinicionBloqueo bloqueoDeRegistro(FDAPI::Conexion& conexion, const char* tabla,
                                           std::int32_t id, const std::string& existe) {
  FDAPI::DefinicionBloqueo definicion = bloqueoDeTabla(tabla);
  definicion.strRegistro = std::to_string(id);
  definicion.conBd = &conexion;
  definicion.blnComprobarExisteRegistro = true;
  definicion.strSQLExisteRegistro = existe;
  return definicion;
}

}  // namespace fidaleon
