#pragma once

#include <cstdint>
#include <string>

#include "core/contract/FDAPI.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Whose entry or request it is: "Ana Gil Roca". Empty when it has gone or nothing is known.
std::string quienDePartida(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                           std::int32_t lngID);

/// The same and, in a second line, where the entry stands: for questions about it. A request has
/// the first line alone.
std::string nombrePartida(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                          std::int32_t lngID);

}  // namespace fidaleon
