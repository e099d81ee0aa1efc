#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fidaleon::locks {

enum class Kind { Table, SharedTable, Record, SharedRecord };

constexpr bool onRecord(Kind kind) {
  return kind == Kind::Record || kind == Kind::SharedRecord;
}

/// Who has a lock, as the others are told.
struct Holder {
  std::string user;
  std::string host;
  std::int64_t process = 0;
  std::string since;  // "dd/mm/yyyy HH:mm"
};

/// One lock that is held or wanted.
struct LockEntry {
  Kind kind = Kind::Table;
  std::string table;
  std::string record;        // empty for the two kinds on tables
  std::int32_t counter = 0;  // tells several locks on one table apart

  friend bool operator==(const LockEntry&, const LockEntry&) = default;
};

/// Whether two locks of different sessions keep each other out. Tables compare without case.
bool conflict(const LockEntry& a, const LockEntry& b);

struct HeldEntry {
  LockEntry entry;
  Holder holder;
};

/// What a session's file holds: one line for each lock.
std::string encode(const std::vector<HeldEntry>& entries);
/// Lines that are damaged are passed over.
std::vector<HeldEntry> decode(std::string_view content);

}  // namespace fidaleon::locks
