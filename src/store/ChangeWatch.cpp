#include "store/ChangeWatch.h"

#include "store/Backend.h"

namespace fidaleon::store {

ChangeWatch::ChangeWatch(Connection& connection)
    : connection_(connection),
      onlooker_(backendAt(connection.Properties("DATA SOURCE").Value)->open()),
      writtenBefore_(written()),
      storedBefore_(stored()) {}

ChangeWatch::~ChangeWatch() = default;

bool ChangeWatch::changed() const noexcept {
  try {
    return written() != writtenBefore_ && stored() != storedBefore_;
  } catch (const std::exception&) {
    return true;
  }
}

/// Rows that the connection has touched, also in what it took back.
std::int64_t ChangeWatch::written() const {
  return connection_.engine().touchedSoFar();
}

/// Differs whenever somebody else, seen from the onlooker, has committed.
std::int64_t ChangeWatch::stored() const {
  return onlooker_->othersStored();
}

}  // namespace fidaleon::store
