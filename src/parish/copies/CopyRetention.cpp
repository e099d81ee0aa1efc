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

std::vector<std::size_t> superfluous(const std::vector<CopyFacts>& copies, std::size_t kept) {
  int weeks = 0;
  std::uintmax_t bytes = 0;
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < copies.size(); ++i) {
    const bool recent = i < kept;
    const bool ofItsWeek = !recent && mondayOf(copies[i - 1].day) != mondayOf(copies[i].day);
    const bool timely = recent || (ofItsWeek && ++weeks <= WEEKS_KEPT);
    const bool fits = i < COPIES_OF_ANY_SIZE || bytes + copies[i].bytes <= BYTES_KEPT;
    if (timely && fits)
      bytes += copies[i].bytes;
    else
      places.push_back(i);
  }
  return places;
}

}  // namespace fidaleon::app
