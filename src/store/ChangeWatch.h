#pragma once

#include <cstdint>
#include <memory>

#include "store/Connection.h"

namespace fidaleon::store {

/// Tells whether what a connection did since the watch was set has changed its database. What
/// was rolled back is no change, nor is what others write meanwhile. When in doubt it says yes.
class ChangeWatch {
 public:
  /// The connection must outlive the watch, and its database one that others can open.
  explicit ChangeWatch(Connection& connection);
  ~ChangeWatch();
  ChangeWatch(const ChangeWatch&) = delete;
  ChangeWatch& operator=(const ChangeWatch&) = delete;

  bool changed() const noexcept;

 private:
  std::int64_t written() const;
  std::int64_t stored() const;

  Connection& connection_;
  std::unique_ptr<Engine> onlooker_;
  std::int64_t writtenBefore_;
  std::int64_t storedBefore_;
};

}  // namespace fidaleon::store
