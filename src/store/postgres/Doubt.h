#pragma once

#include <string>

#include "store/postgres/Link.h"

namespace fidaleon::store {

/// A transaction of which it is not known whether it came to its end, because the link was lost
/// while it was being ended.
class Doubt {
 public:
  bool any() const { return !transaction_.empty(); }
  void raise(const std::string& transaction) { transaction_ = transaction; }
  void drop() { transaction_.clear(); }
  /// Whether it is stored, which ends the doubt. Throws Connection, and stays, when the server does
  /// not say.
  bool resolve(Link& link);

 private:
  std::string transaction_;  // its number
};

/// For whoever has to be told that it cannot be known yet, or that it was stored after all.
Error notKnown();
Error storedAfterAll();

}  // namespace fidaleon::store
