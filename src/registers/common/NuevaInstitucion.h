#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// The host's dialog for a new institution. The key of what was added, 0 when nothing was.
std::int32_t nuevaInstitucion(Contexto& contexto, FDAPI::Conexion& conexion);

}  // namespace fidaleon
