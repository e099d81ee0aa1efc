#pragma once

#include <optional>
#include <string>

#include "window/help/Manual.h"

namespace fidaleon::app {

/// Where the manual speaks of it: a form or window by its name, a node of the tree by its own, a
/// command by its id. Nothing for a name that has no place of its own.
std::optional<Place> helpPlace(const std::string& name);

}  // namespace fidaleon::app
