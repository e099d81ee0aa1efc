#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "text/Dates.h"

namespace fidaleon::app::sample {

constexpr int FIRST_YEAR = 1924;  // of the oldest books

/// Numbers that are the same on every machine: the distributions of the library are not.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}
  int upTo(int n) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(n)); }
  int between(int low, int high) { return low + upTo(high - low + 1); }
  bool oneIn(int n) { return upTo(n) == 0; }
  template <class List>
  std::string pick(const List& list) {
    return std::string(list[static_cast<std::size_t>(upTo(static_cast<int>(list.size())))]);
  }
  /// As children were called who were born in that year.
  std::string givenName(bool woman, int year);

 private:
  std::mt19937 engine_;
};

/// The priest of that year, by his name alone.
std::string ministerIn(int year, int lastYear);

text::Date daysAfter(text::Date day, int days);

}  // namespace fidaleon::app::sample
