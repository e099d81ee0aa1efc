#pragma once

#include <string>
#include <vector>

#include "forms/Form.h"

namespace fidaleon::qt {

/// Opens a loaded form in a window of the smallest screen we promise (1366 by 768) and walks its
/// tabs, looking for what would keep a user from working with it: a control without a widget, an
/// input without a name, outside the tab order or without a letter of its own where another has
/// the same, anything cut off, pushed outside its page, or over its neighbour. Gives what it
/// found, in words; empty is good. The tab in front is the first one again afterwards.
std::vector<std::string> sweep(forms::Form& form);

}  // namespace fidaleon::qt
