#pragma once

#include <cstdint>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// Deletes the five rows of an entry, whoever else uses those of the parents.
void borrarFilasBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);

}  // namespace fidaleon
