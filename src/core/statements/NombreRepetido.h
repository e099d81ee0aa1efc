#pragma once

#include <string>
#include <string_view>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// Whether one of the names that `sql` gives in its first column is the same as `nombre` to people:
/// neither case nor blanks tell two names apart.
bool hayMismoNombre(FDAPI::Conexion& conexion, const std::string& sql, std::string_view nombre);

}  // namespace fidaleon
