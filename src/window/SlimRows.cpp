#include "window/SlimRows.h"

#include <algorithm>
#include <functional>
#include <type_traits>

namespace fidaleon::app {
namespace {

constexpr std::size_t SAMPLE = 4096;  // texts after which a column is known to repeat them or not
constexpr std::size_t FIRST_SLOTS = 64;

}  // namespace

std::string_view Texts::at(std::uint32_t number) const {
  const std::uint32_t begin = number == 0 ? 0 : ends_[number - 1];
  return std::string_view(all_).substr(begin, ends_[number] - begin);
}

std::uint32_t Texts::add(std::string_view text) {
  std::uint32_t* slot = nullptr;
  if (!unlike_) {
    if (++added_ % SAMPLE == 0 && ends_.size() * 10 > added_ * 9) {
      unlike_ = true;
      slots_ = {};
    } else {
      makeRoom();
      slot = &slotOf(text);
      if (*slot != 0) return *slot - 1;
    }
  }
  all_ += text;
  ends_.push_back(static_cast<std::uint32_t>(all_.size()));
  if (slot) *slot = count();
  return count() - 1;
}

std::uint32_t& Texts::slotOf(std::string_view text) {
  const std::size_t mask = slots_.size() - 1;
  std::size_t place = std::hash<std::string_view>()(text) & mask;
  while (slots_[place] != 0 && at(slots_[place] - 1) != text) place = (place + 1) & mask;
  return slots_[place];
}

void Texts::makeRoom() {
  if (ends_.size() * 2 < slots_.size()) return;
  slots_.assign(std::max(FIRST_SLOTS, slots_.size() * 2), 0);
  for (std::uint32_t number = 0; number < count(); ++number) slotOf(at(number)) = number + 1;
}

void SlimRows::insert(int row, const ListRow& content) {
  if (content.group != 0 && groups_.empty()) groups_.resize(keys_.size());
  const bool grouped = content.group != 0 || !groups_.empty();
  keys_.insert(keys_.begin() + row, content.key);
  if (grouped) groups_.insert(groups_.begin() + row, content.group);
  annulled_.insert(annulled_.begin() + row, content.annulled);
  for (std::size_t c = 0; c < columns_.size(); ++c)
    columns_[c].cells.insert(columns_[c].cells.begin() + row,
                             columns_[c].texts.add(content.cells[c]));
}

void SlimRows::replace(int row, const ListRow& content) {
  if (!groups_.empty()) groups_[at(row)] = content.group;
  annulled_[at(row)] = content.annulled;
  for (std::size_t c = 0; c < columns_.size(); ++c)
    if (text(row, static_cast<int>(c)) != content.cells[c])
      columns_[c].cells[at(row)] = columns_[c].texts.add(content.cells[c]);
}

void SlimRows::remove(int row) {
  keys_.erase(keys_.begin() + row);
  if (!groups_.empty()) groups_.erase(groups_.begin() + row);
  annulled_.erase(annulled_.begin() + row);
  for (Column& column : columns_) column.cells.erase(column.cells.begin() + row);
}

void SlimRows::arrange(const std::vector<int>& rows) {
  const auto apply = [&](auto& values) {
    if (values.empty()) return;
    std::remove_reference_t<decltype(values)> arranged;
    arranged.reserve(values.size());
    for (const int row : rows) arranged.push_back(values[at(row)]);
    values = std::move(arranged);
  };
  apply(keys_);
  apply(groups_);
  apply(annulled_);
  for (Column& column : columns_) apply(column.cells);
}

int SlimRows::rowOf(std::int32_t key) const {
  const auto found = std::find(keys_.begin(), keys_.end(), key);
  return found == keys_.end() ? -1 : static_cast<int>(found - keys_.begin());
}

std::pair<int, int> SlimRows::rowsOf(std::int32_t group) const {
  if (group == 0) return {0, count()};
  const auto first = std::find(groups_.begin(), groups_.end(), group);
  const auto last = std::find_if(first, groups_.end(), [&](auto g) { return g != group; });
  return {static_cast<int>(first - groups_.begin()), static_cast<int>(last - groups_.begin())};
}

}  // namespace fidaleon::app
