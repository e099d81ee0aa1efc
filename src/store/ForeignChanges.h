#pragma once

#include <cstdint>

#include "store/Connection.h"

namespace fidaleon::store {

/// Tells a connection that others have changed its database: other programs, or other connections
/// of this one. What it writes itself does not count.
class ForeignChanges {
 public:
  /// The connection must outlive this.
  explicit ForeignChanges(Connection& connection);

  /// Whether there were any since the last call. When it cannot be told there were none, and the
  /// next call says so.
  bool since() noexcept;

 private:
  Connection& connection_;
  std::int64_t seen_ = 0;
};

}  // namespace fidaleon::store
