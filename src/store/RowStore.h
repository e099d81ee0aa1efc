#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/Value.h"

namespace fidaleon::store {

/// Rows of one width, kept compactly: sixteen bytes a cell and the texts in large blocks.
class RowStore {
 public:
  explicit RowStore(int width) : width_(width) {}

  /// An engine adds the cells of a row in order, then ends the row.
  void addNull() { *next_++ = Cell{}; }
  void addInteger(std::int64_t n) {
    next_->kind = Kind::Integer;
    next_++->payload.integer = n;
  }
  void addReal(double n) {
    next_->kind = Kind::Real;
    next_++->payload.real = n;
  }
  void addText(std::string_view s) {
    char* copy = s.size() <= left_ ? free_ : newBlock(s.size());
    if (!s.empty()) std::memcpy(copy, s.data(), s.size());
    free_ = copy + s.size();
    left_ -= s.size();
    next_->kind = Kind::Text;
    next_->size = static_cast<std::uint32_t>(s.size());
    next_++->payload.text = copy;
  }
  void beginRow();
  void endRow() { ++rows_; }

  std::int64_t rows() const { return rows_; }
  int width() const { return width_; }
  Value at(std::int64_t row, int column) const;
  /// As Value would read them, without making one.
  std::string text(std::int64_t row, int column) const {
    const Cell& c = cell(row, column);
    return c.kind == Kind::Text ? std::string(c.payload.text, c.size) : at(row, column).text();
  }
  std::int64_t integer(std::int64_t row, int column) const {
    const Cell& c = cell(row, column);
    return c.kind == Kind::Integer ? c.payload.integer : at(row, column).integer();
  }

 private:
  enum class Kind : std::uint32_t { Null, Integer, Real, Text };
  union Payload {
    std::int64_t integer;
    double real;
    const char* text;
  };
  struct Cell {
    Kind kind = Kind::Null;
    std::uint32_t size = 0;
    Payload payload{};
  };
  /// Rows in one block of cells: the first block is small, since most record sets hold one row.
  static constexpr int kFirstRows = 4;
  static constexpr int kRows = 64;

  const Cell& cell(std::int64_t row, int column) const {
    const bool first = row < kFirstRows;
    const std::int64_t place = first ? row : row - kFirstRows;
    const auto block = first ? 0 : static_cast<std::size_t>(1 + place / kRows);
    return cells_[block]
                 [static_cast<std::size_t>((first ? place : place % kRows) * width_ + column)];
  }
  char* newBlock(std::size_t size);

  int width_;
  std::int64_t rows_ = 0;
  std::vector<std::unique_ptr<Cell[]>> cells_;
  Cell* next_ = nullptr;
  std::vector<std::unique_ptr<char[]>> texts_;
  char* free_ = nullptr;
  std::size_t left_ = 0;
};

}  // namespace fidaleon::store
