#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "store/Draft.h"
#include "store/Error.h"
#include "store/Progress.h"
#include "store/schema/Schema.h"

namespace fidaleon::store {

/// The database shows what the copy held, but the disk has not confirmed that it keeps it.
class Unconfirmed : public Error {
 public:
  explicit Unconfirmed(const Error& why);
};

/// A saved copy of a database, compressed or not, made ready to be returned to: read into a passing
/// file beside it (on a server's desk, beside the address), brought up to the version of the
/// schema, and checked. The copy itself is only read.
class Restore {
 public:
  /// Throws Missing, NotADatabase when the copy is damaged or of another kind, NewerSchema, Busy
  /// when it is no copy but a database that a program has open, DiskFull; nothing has changed then.
  Restore(const std::filesystem::path& copy, const std::filesystem::path& database,
          const Schema& schema, const Progress& progress = {});

  /// Replaces all that the database holds, in one transaction: whoever is killed, at
  /// whatever moment, leaves either the old content or the new one, and open connections see the
  /// new one from their next statement on. Throws Busy while somebody writes or, on a network
  /// disk, reads; DiskFull; nothing has changed then. What was stored is read back and checked.
  /// Throws Unconfirmed when the failure came after everything was replaced.
  void run(const Progress& progress = {});

  /// For a database that can be opened no more, or is gone: the copy takes its name. What bore the
  /// name, and what lay beside it, is put aside: gives the name it has now, empty when there was
  /// nothing. Nobody may have the database open. Throws Connection, ReadOnly, DiskFull.
  std::filesystem::path takePlace();

 private:
  void replace(const Progress& progress);
  bool isReplaced(const std::vector<std::int64_t>& before) const;
  void requireContent() const;

  std::filesystem::path database_;
  const Schema& schema_;
  Draft draft_;
  std::vector<std::int64_t> counts_;
};

}  // namespace fidaleon::store
