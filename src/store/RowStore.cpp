#include "store/RowStore.h"

namespace fidaleon::store {

void RowStore::beginRow() {
  const std::int64_t place = rows_ - kFirstRows;
  if (rows_ != 0 && (place < 0 || place % kRows != 0)) return;
  const int rows = rows_ == 0 ? kFirstRows : kRows;
  cells_.push_back(std::make_unique_for_overwrite<Cell[]>(static_cast<std::size_t>(rows * width_)));
  next_ = cells_.back().get();
}

char* RowStore::newBlock(std::size_t size) {
  const std::size_t block = texts_.empty() ? 1024 : 64 * 1024;
  left_ = size > block ? size : block;
  texts_.push_back(std::make_unique_for_overwrite<char[]>(left_));
  return texts_.back().get();
}

Value RowStore::at(std::int64_t row, int column) const {
  const Cell& c = cell(row, column);
  switch (c.kind) {
    case Kind::Integer:
      return Value(c.payload.integer);
    case Kind::Real:
      return Value(c.payload.real);
    case Kind::Text:
      return Value(std::string(c.payload.text, c.size));
    case Kind::Null:
      break;
  }
  return {};
}

}  // namespace fidaleon::store
