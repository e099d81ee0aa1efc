#pragma once

#include "store/Connection.h"

namespace fidaleon::store {

/// For work that writes thousands of rows: as long as it lives the engine holds more of the
/// database in memory and brings its log home in larger pieces. What is committed is as safe as
/// ever.
class LargeWrite {
 public:
  explicit LargeWrite(Engine& engine);
  explicit LargeWrite(Connection& connection) : LargeWrite(connection.engine()) {}
  ~LargeWrite();
  LargeWrite(const LargeWrite&) = delete;
  LargeWrite& operator=(const LargeWrite&) = delete;

 private:
  Engine& engine_;
};

}  // namespace fidaleon::store
