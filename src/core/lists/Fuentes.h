#pragma once

#include <span>

#include "core/lists/Memoria.h"

namespace fidaleon {

/// What has been written in the registers and in the census, by kind.
std::span<const Fuente> fuentes();

}  // namespace fidaleon
