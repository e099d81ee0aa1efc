#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "store/Value.h"

namespace fidaleon::store {

/// Rows of one width, kept compactly: sixteen bytes a cell and the texts in large blocks.
class RowStore {
 public:
  explicit RowStore(int width) : width_(width) {}

  /// An engine adds the cells of a row in order, then ends the row.
  void addNull() { cells_.push_back({Kind::Null, 0, {}}); }
  void addInteger(std::int64_t n);
  void addReal(double n);
  void addText(std::string_view s);
  void endRow() { ++rows_; }

  std::int64_t rows() const { return rows_; }
  int width() const { return width_; }
  Value at(std::int64_t row, int column) const;

 private:
  enum class Kind : std::uint32_t { Null, Integer, Real, Text };
  union Payload {
    std::int64_t integer;
    double real;
    const char* text;
  };
  struct Cell {
    Kind kind;
    std::uint32_t size;
    Payload payload;
  };
  static constexpr std::size_t kBlock = 64 * 1024;

  char* room(std::size_t size);

  int width_;
  std::int64_t rows_ = 0;
  std::vector<Cell> cells_;
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* next_ = nullptr;
  std::size_t left_ = 0;
};

}  // namespace fidaleon::store
