#include "store/RowStore.h"

#include <cstring>

namespace fidaleon::store {

void RowStore::addInteger(std::int64_t n) {
  Cell cell{Kind::Integer, 0, {}};
  cell.payload.integer = n;
  cells_.push_back(cell);
}

void RowStore::addReal(double n) {
  Cell cell{Kind::Real, 0, {}};
  cell.payload.real = n;
  cells_.push_back(cell);
}

void RowStore::addText(std::string_view s) {
  char* copy = room(s.size());
  if (!s.empty()) std::memcpy(copy, s.data(), s.size());
  Cell cell{Kind::Text, static_cast<std::uint32_t>(s.size()), {}};
  cell.payload.text = copy;
  cells_.push_back(cell);
}

char* RowStore::room(std::size_t size) {
  if (size > left_) {
    // The first block is small: most record sets hold one row.
    const std::size_t block = blocks_.empty() ? 1024 : kBlock;
    left_ = size > block ? size : block;
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(left_));
    next_ = blocks_.back().get();
  }
  char* here = next_;
  next_ += size;
  left_ -= size;
  return here;
}

Value RowStore::at(std::int64_t row, int column) const {
  const Cell& cell = cells_[static_cast<std::size_t>(row * width_ + column)];
  switch (cell.kind) {
    case Kind::Integer:
      return Value(cell.payload.integer);
    case Kind::Real:
      return Value(cell.payload.real);
    case Kind::Text:
      return Value(std::string(cell.payload.text, cell.size));
    case Kind::Null:
      break;
  }
  return {};
}

}  // namespace fidaleon::store
