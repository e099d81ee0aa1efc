#pragma once

#include <string>
#include <unordered_map>

#include "store/postgres/Link.h"

namespace fidaleon::store {

/// What the server says of a table.
struct TableFacts {
  std::string table;
  std::string key;       // the counter, or the column of the engine's own
  bool harmless = true;  // no key but the counter
};

/// Those of all tables, as they were when they were read.
class KnownTables {
 public:
  /// Nothing may be waiting on the link.
  void read(Link& link);
  /// Null when it is not known.
  const TableFacts* find(const std::string& table) const;
  /// By the number that the server gives it; empty when it is not known.
  std::string name(Oid number) const;

 private:
  std::unordered_map<std::string, TableFacts> facts_;
  std::unordered_map<Oid, std::string> names_;
};

}  // namespace fidaleon::store
