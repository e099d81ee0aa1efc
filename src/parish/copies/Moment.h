#pragma once

#include <compare>
#include <ctime>

#include "text/Dates.h"

namespace fidaleon::app {

/// A second of the local time.
struct Moment {
  text::Date day;
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend auto operator<=>(const Moment&, const Moment&) = default;
};

Moment momentOf(std::time_t time);
Moment thisMoment();
bool isValid(const Moment& moment);

}  // namespace fidaleon::app
