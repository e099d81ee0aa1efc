#pragma once

#include <string>

#include "store/postgres/Link.h"

namespace fidaleon::store {

/// By which a server knows a transaction.
struct ServerTransaction {
  /// The expression by which it is asked for.
  static constexpr const char* kEra =
      "left(pg_walfile_name(pg_current_wal_lsn()), 8) || pg_postmaster_start_time()";
  std::string number;
  std::string era;  // changes when the server is started again or a replica takes its place
  bool isKnown() const { return !number.empty(); }
};

/// A transaction of which it is not known whether it came to its end, because the link was lost
/// while it was being ended.
class Doubt {
 public:
  bool any() const { return transaction_.isKnown(); }
  void raise(const ServerTransaction& transaction) { transaction_ = transaction; }
  void drop() { transaction_ = {}; }
  /// Whether it is stored, which ends the doubt. Throws Connection, and stays, when the server does
  /// not say. A server that was started again or relieved may have given the number to somebody
  /// else since: there it may have to throw Other and leave it to the user to look.
  bool resolve(Link& link);

 private:
  ServerTransaction transaction_;
};

/// For whoever has to be told that it cannot be known yet, or that it was stored after all.
Error notKnown();
Error storedAfterAll();

}  // namespace fidaleon::store
