#pragma once

#include "store/Connection.h"

namespace fidaleon::store {

/// Whether rows are taken away in a transaction, as far as is known when it begins.
enum class Removes { No, Yes };

/// A transaction for the length of a block, rolled back unless it was committed.
class Transaction {
 public:
  explicit Transaction(Connection& connection, Removes removes = Removes::No)
      : connection_(connection) {
    if (removes == Removes::Yes) connection_.aheadOfRemoval();
    connection_.BeginTrans();
  }
  ~Transaction() {
    if (!committed_) rollBack();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void commit() {
    connection_.CommitTrans();
    committed_ = true;
  }

 private:
  /// The error that leads here is the one worth telling.
  void rollBack() noexcept {
    try {
      connection_.RollbackTrans();
    } catch (const std::exception&) {
    }
  }

  Connection& connection_;
  bool committed_ = false;
};

}  // namespace fidaleon::store
