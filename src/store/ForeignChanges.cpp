#include "store/ForeignChanges.h"

#include <exception>
#include <utility>

#include "store/RowCounts.h"

namespace fidaleon::store {

ForeignChanges::ForeignChanges(Connection& connection) : connection_(connection) {
  since();
}

bool ForeignChanges::since() noexcept {
  try {
    const std::int64_t before = std::exchange(seen_, version());
    return seen_ != before;
  } catch (const std::exception&) {
    return false;
  }
}

std::int64_t ForeignChanges::version() const {
  return onlyNumber(connection_.engine(), "PRAGMA data_version");
}

}  // namespace fidaleon::store
