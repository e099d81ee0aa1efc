#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fidaleon::app {

/// Texts by number. The same text has one number, as long as the texts come again and again; of a
/// column where hardly any does each has its own.
class Texts {
 public:
  std::uint32_t add(std::string_view text);
  std::uint32_t count() const { return static_cast<std::uint32_t>(ends_.size()); }
  /// Until the next one is added.
  std::string_view at(std::uint32_t number) const;

 private:
  std::uint32_t& slotOf(std::string_view text);
  void makeRoom();

  std::string all_;                   // one behind the other
  std::vector<std::uint32_t> ends_;   // by number
  std::vector<std::uint32_t> slots_;  // numbers from 1, by the hash of the text; 0 is free
  std::size_t added_ = 0;
  bool unlike_ = false;
};

/// A row on its way into the list.
struct ListRow {
  std::int32_t key = 0;
  std::int32_t group = 0;  // 0 where rows belong to none
  bool annulled = false;
  std::vector<std::string> cells;
};

/// The rows of a list, in little room: a million of them are kept at once.
class SlimRows {
 public:
  explicit SlimRows(std::size_t columns = 0) : columns_(columns) {}

  int count() const { return static_cast<int>(keys_.size()); }
  void append(const ListRow& row) { insert(count(), row); }
  void insert(int row, const ListRow& content);
  void replace(int row, const ListRow& content);
  void remove(int row);
  /// Each row goes where it stands in this list of all of them.
  void arrange(const std::vector<int>& rows);

  const std::vector<std::int32_t>& keys() const { return keys_; }
  std::int32_t key(int row) const { return keys_[at(row)]; }
  std::int32_t group(int row) const { return groups_.empty() ? 0 : groups_[at(row)]; }
  bool annulled(int row) const { return annulled_[at(row)]; }
  /// The row of that key, or -1.
  int rowOf(std::int32_t key) const;
  /// The first row of that group and the one behind its last; twice the same when it has none.
  std::pair<int, int> rowsOf(std::int32_t group) const;

  const Texts& texts(int column) const { return columns_[at(column)].texts; }
  std::uint32_t number(int row, int column) const { return columns_[at(column)].cells[at(row)]; }
  std::string_view text(int row, int column) const { return texts(column).at(number(row, column)); }

 private:
  struct Column {
    Texts texts;
    std::vector<std::uint32_t> cells;
  };
  static std::size_t at(int n) { return static_cast<std::size_t>(n); }

  std::vector<std::int32_t> keys_;
  std::vector<std::int32_t> groups_;  // none until a row has one
  std::vector<bool> annulled_;
  std::vector<Column> columns_;
};

}  // namespace fidaleon::app
