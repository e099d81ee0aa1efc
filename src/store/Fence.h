#pragma once

#include <string>

namespace fidaleon::store {

/// What stands beside a database and must hold whenever something is stored there: on a server, the
/// locks under which it is done. The engine sends the statement within the transaction, ahead of
/// the first that writes.
class Fence {
 public:
  virtual ~Fence() = default;
  /// Fails with SQLSTATE FB001 when what must hold does not.
  virtual std::string statement() = 0;
  /// The transaction has been undone for that. Puts it right, so that it may begin again with a new
  /// statement, or throws store::Error for the user.
  virtual void lost() = 0;
};

}  // namespace fidaleon::store
