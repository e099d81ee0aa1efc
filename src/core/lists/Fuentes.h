#pragma once

#include <span>

#include "core/lists/Memoria.h"

namespace fidaleon {

/// What the registers have written, by kind.
std::span<const Fuente> fuentesDeRegistros();

}  // namespace fidaleon
