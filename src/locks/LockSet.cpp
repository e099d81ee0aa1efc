#include "locks/LockSet.h"

#include <algorithm>

#include "text/Utf8.h"

namespace fidaleon::locks {

void LockSet::add(HeldEntry held) {
  const OfTable* known = find(held.entry.table);
  if (known && holds(*known, held.entry)) return;
  const std::size_t place = all_.size();
  const LockEntry& entry = all_.emplace_back(std::move(held)).entry;
  OfTable& table = known ? tables_[static_cast<std::size_t>(known - tables_.data())]
                         : tables_.emplace_back(OfTable{entry.table, place, {}, {}});
  if (onRecord(entry.kind))
    table.records.emplace(entry.record, place);
  else
    table.whole.push_back(place);
}

std::vector<HeldEntry> LockSet::release() {
  std::vector<HeldEntry> all(std::move_iterator(all_.begin()), std::move_iterator(all_.end()));
  tables_.clear();
  all_.clear();
  return all;
}

const LockSet::OfTable* LockSet::find(std::string_view table) const {
  const auto found = std::ranges::find_if(
      tables_, [&](const OfTable& t) { return text::equalsNoCase(t.name, table); });
  return found == tables_.end() ? nullptr : &*found;
}

bool LockSet::contains(const LockEntry& entry) const {
  const OfTable* table = find(entry.table);
  return table && holds(*table, entry);
}

bool LockSet::holds(const OfTable& table, const LockEntry& entry) const {
  const auto same = [&](std::size_t place) { return all_[place].entry == entry; };
  if (!onRecord(entry.kind)) return std::ranges::any_of(table.whole, same);
  const auto [first, last] = table.records.equal_range(entry.record);
  return std::any_of(first, last, [&](const auto& record) { return same(record.second); });
}

std::optional<std::size_t> LockSet::firstConflict(const LockEntry& other) const {
  const OfTable* table = find(other.table);
  if (!table) return std::nullopt;
  if (other.kind == Kind::Table) return table->first;
  std::optional<std::size_t> first;
  const auto look = [&](std::size_t place) {
    if (conflict(all_[place].entry, other) && (!first || place < *first)) first = place;
  };
  std::ranges::for_each(table->whole, look);
  if (!onRecord(other.kind)) return first;
  const auto [begin, end] = table->records.equal_range(other.record);
  std::for_each(begin, end, [&](const auto& record) { look(record.second); });
  return first;
}

}  // namespace fidaleon::locks
