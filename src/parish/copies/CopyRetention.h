#pragma once

#include <cstddef>
#include <vector>

#include "text/Dates.h"

namespace fidaleon::app {

constexpr std::size_t COPIES_KEPT = 30;
constexpr int WEEKS_KEPT = 52;

/// Which automatic copies are no longer wanted, as places in `days`, the days on which they were
/// made, newest first. The newest COPIES_KEPT stay; of the others, those that are the newest of
/// their ISO week (Monday to Sunday), for the last WEEKS_KEPT weeks in which there were any. What
/// day it is has no say: a clock that runs years ahead must not make all that there is old.
std::vector<std::size_t> superfluous(const std::vector<text::Date>& days);

}  // namespace fidaleon::app
