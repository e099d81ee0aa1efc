#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/Dates.h"

namespace fidaleon::dbase {

/// The value of one column of one row.
struct Cell {
  enum class Kind : std::uint8_t { Missing, Text, Integer, Real, Date, Moment, Logical };

  Kind kind = Kind::Missing;
  /// Text without the blanks behind it; a number in digits, as it is stored.
  std::string_view text;
  std::int64_t integer = 0;  // Integer; Logical: 0, 1; Moment: milliseconds of the day
  double real = 0;           // Integer and Real
  text::Date date;           // Date and Moment

  bool isMissing() const { return kind == Kind::Missing; }
};

/// One row, used again for the next one: what its cells point to is good until then.
class Row {
 public:
  const Cell& operator[](std::size_t column) const { return cells_[column]; }
  std::size_t size() const { return cells_.size(); }
  /// Its place in the file, from 1, deleted ones counted.
  std::int64_t record() const { return record_; }

 private:
  friend class Table;
  std::vector<Cell> cells_;
  std::string texts_;
  std::int64_t record_ = 0;
};

}  // namespace fidaleon::dbase
