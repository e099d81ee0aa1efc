#include "registers/common/Bloqueos.h"

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
  FDAPI::DefinicionBloqueo definicion = bloqueoDeTabla(tabla);
  definicion.strRegistro = std::to_string(id);
  definicion.conBd = &conexion;
  definicion.blnComprobarExisteRegistro = true;
  definicion.strSQLExisteRegistro = std::string("SELECT ") + clave + " FROM " + tabla + " WHERE " +
                                    clave + "=" + definicion.strRegistro;
  return definicion;
}

}  // namespace fidaleon
