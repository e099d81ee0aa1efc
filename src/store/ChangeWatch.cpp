#include "store/ChangeWatch.h"

#include "store/RowCounts.h"
#include "store/sqlite/SqliteEngine.h"

namespace fidaleon::store {

ChangeWatch::ChangeWatch(Connection& connection)
    : connection_(connection),
      onlooker_(std::make_unique<SqliteEngine>(connection.Properties("DATA SOURCE").Value,
                                               SqliteEngine::Access::Existing)),
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
  return onlyNumber(connection_.engine(), "SELECT total_changes()");
}

/// Differs whenever somebody else, seen from the onlooker, has committed.
std::int64_t ChangeWatch::stored() const {
  return onlyNumber(*onlooker_, "PRAGMA data_version");
}

}  // namespace fidaleon::store
