#include "parish/copies/CopyRetention.h"

#include <chrono>

namespace fidaleon::app {
namespace {

std::chrono::sys_days mondayOf(const text::Date& d) {
  using namespace std::chrono;
  const sys_days day = year(d.year) / month(static_cast<unsigned>(d.month)) /
                       std::chrono::day(static_cast<unsigned>(d.day));
  return day - (weekday(day) - Monday);
}

}  // namespace

std::vector<std::size_t> superfluous(const std::vector<text::Date>& days) {
  int weeks = 0;
  std::vector<std::size_t> places;
  for (std::size_t i = COPIES_KEPT; i < days.size(); ++i) {
    const bool newestOfItsWeek = mondayOf(days[i - 1]) != mondayOf(days[i]);
    if (!newestOfItsWeek || ++weeks > WEEKS_KEPT) places.push_back(i);
  }
  return places;
}

}  // namespace fidaleon::app
