#pragma once

#include <cstdint>

#include "core/contract/Sacramento.h"
#include "core/contract/SesionBloqueos.h"

namespace fidaleon {

/// Defines the lock of a request as long as it is one: what another desk has moved into a book
/// meanwhile counts as gone, and the user is told so.
void bloquearSolicitud(SesionBloqueos& sesion, const Sacramento& sacramento, std::int32_t lngID);

}  // namespace fidaleon
