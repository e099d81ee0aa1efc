#include "store/RowStore.h"

#include <cstring>

namespace fidaleon::store {

void RowStore::beginRow() {
  const std::int64_t place = rows_ - kFirstRows;
  if (rows_ != 0 && (place < 0 || place % kRows != 0)) return;
  const int rows = rows_ == 0 ? kFirstRows : kRows;
  cells_.push_back(std::make_unique_for_overwrite<Cell[]>(static_cast<std::size_t>(rows * width_)));
  next_ = cells_.back().get();
}

void RowStore::addInteger(std::int64_t n) {
  next_->kind = Kind::Integer;
  next_++->payload.integer = n;
}

void RowStore::addReal(double n) {
  next_->kind = Kind::Real;
  next_++->payload.real = n;
}

void RowStore::addText(std::string_view s) {
  char* copy = room(s.size());
  if (!s.empty()) std::memcpy(copy, s.data(), s.size());
  next_->kind = Kind::Text;
  next_->size = static_cast<std::uint32_t>(s.size());
  next_++->payload.text = copy;
}

char* RowStore::room(std::size_t size) {
  if (size > left_) {
    const std::size_t block = texts_.empty() ? 1024 : 64 * 1024;
    left_ = size > block ? size : block;
    texts_.push_back(std::make_unique_for_overwrite<char[]>(left_));
    free_ = texts_.back().get();
  }
  char* here = free_;
  free_ += size;
  left_ -= size;
  return here;
}

const RowStore::Cell& RowStore::cell(std::int64_t row, int column) const {
  const bool first = row < kFirstRows;
  const std::int64_t place = first ? row : row - kFirstRows;
  const auto block = first ? 0 : static_cast<std::size_t>(1 + place / kRows);
  return cells_[block][static_cast<std::size_t>((first ? place : place % kRows) * width_ + column)];
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

std::string RowStore::text(std::int64_t row, int column) const {
  const Cell& c = cell(row, column);
  return c.kind == Kind::Text ? std::string(c.payload.text, c.size) : at(row, column).text();
}

std::int64_t RowStore::integer(std::int64_t row, int column) const {
  const Cell& c = cell(row, column);
  return c.kind == Kind::Integer ? c.payload.integer : at(row, column).integer();
}

}  // namespace fidaleon::store
