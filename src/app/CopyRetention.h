#pragma once

#include <cstddef>
#include <vector>

#include "text/Dates.h"

namespace fidaleon::app {

constexpr std::size_t COPIES_KEPT = 30;
constexpr int WEEKS_KEPT = 52;

/// Which automatic copies are no longer wanted, as places in `days`, the days on which they were
/// made, newest first. The newest COPIES_KEPT stay; of the others, those that are the newest of
/// their ISO week (Monday to Sunday), down to the week WEEKS_KEPT before the one of `today`.
std::vector<std::size_t> superfluous(const std::vector<text::Date>& days, const text::Date& today);

}  // namespace fidaleon::app
