#include "store/ForeignChanges.h"

#include <exception>
#include <utility>

#include "store/Engine.h"

namespace fidaleon::store {

ForeignChanges::ForeignChanges(Connection& connection) : connection_(connection) {
  since();
}

bool ForeignChanges::since() noexcept {
  try {
    const std::int64_t before = std::exchange(seen_, connection_.engine().othersStored());
    return seen_ != before;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace fidaleon::store
