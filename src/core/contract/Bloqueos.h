#pragma once

#include <cstdint>
#include <string>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// The whole table for this session alone.
FDAPI::DefinicionBloqueo bloqueoDeTabla(const char* tabla);
/// The table beside others who only use it too.
FDAPI::DefinicionBloqueo bloqueoDeTablaCompartida(const char* tabla);
/// One record for this session alone, with the check that it still exists.
FDAPI::DefinicionBloqueo bloqueoDeRegistro(FDAPI::Conexion& conexion, const char* tabla,
                                           const char* clave, std::int32_t id);
/// The same; `existe` is a statement that gives a row as long as the record is there.
FDAPI::DefinicionBloqueo bloqueoDeRegistro(FDAPI::Conexion& conexion, const char* tabla,
                                           std::int32_t id, const std::string& existe);

}  // namespace fidaleon
