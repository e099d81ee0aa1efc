#pragma once

#include <cstdint>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// Deletes the five rows of an entry, whoever else uses those of the parents.
void borrarFilasBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);

/// The exclusive lock of an entry, with the check that it still exists.
FDAPI::DefinicionBloqueo bloqueoDePartida(FDAPI::Conexion& conBaseDatos, const char* tabla,
                                          const char* clave, std::int32_t lngID);

}  // namespace fidaleon
