#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "locks/LockEntry.h"

namespace fidaleon::locks {

/// Locks in the order in which they were added, each once, found by table and record: whoever has
/// thousands is not to be walked through for each one wanted.
class LockSet {
 public:
  LockSet() = default;
  LockSet(const LockSet&) = delete;
  LockSet& operator=(const LockSet&) = delete;

  /// One that is there already is left as it is.
  void add(HeldEntry held);
  bool contains(const LockEntry& entry) const;
  const std::deque<HeldEntry>& all() const { return all_; }
  /// Gives them away; the set is then empty.
  std::vector<HeldEntry> release();
  /// The place in that order of the first that conflicts with a lock of another session.
  std::optional<std::size_t> firstConflict(const LockEntry& other) const;

 private:
  struct OfTable {
    std::string_view name;
    std::size_t first;
    std::vector<std::size_t> whole;  // on the table itself, shared or not
    std::unordered_multimap<std::string_view, std::size_t> records;
  };
  const OfTable* find(std::string_view table) const;
  bool holds(const OfTable& table, const LockEntry& entry) const;

  std::deque<HeldEntry> all_;  // its elements stay where they are: the texts below are theirs
  std::vector<OfTable> tables_;
};

}  // namespace fidaleon::locks
