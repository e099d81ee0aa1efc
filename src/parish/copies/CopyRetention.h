#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text/Dates.h"

namespace fidaleon::app {

constexpr std::size_t COPIES_KEPT = 30;
constexpr int WEEKS_KEPT = 52;
constexpr std::uintmax_t BYTES_KEPT = 4ULL << 30;
constexpr std::size_t COPIES_OF_ANY_SIZE = 5;

struct CopyFacts {
  text::Date day;  // on which it was made
  std::uintmax_t bytes = 0;
};

/// Which automatic copies are no longer wanted, as places in `copies`, newest first. The newest
/// `kept` stay; of the others, those that are the newest of their ISO week (Monday to Sunday),
/// for the last WEEKS_KEPT weeks in which there were any. Of all these the oldest go that take more
/// room than BYTES_KEPT, but never the newest COPIES_OF_ANY_SIZE. What day it is has no say: a
/// clock that runs years ahead must not make all that there is old.
std::vector<std::size_t> superfluous(const std::vector<CopyFacts>& copies,
                                     std::size_t kept = COPIES_KEPT);

}  // namespace fidaleon::app
