#include "app/RowsFilter.h"

#include <algorithm>
#include <sstream>

#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::app {

void RowsFilter::setText(const QString& text) {
  words_.clear();
  std::istringstream in(text::searchKey(text.toStdString()));
  for (std::string word; in >> word;) words_.push_back(word);
  invalidateFilter();
}

void RowsFilter::setGroup(std::int32_t group) {
  group_ = group;
  invalidateFilter();
}

bool RowsFilter::filterAcceptsRow(int row, const QModelIndex&) const {
  if (group_ != 0 && rows().group(row) != group_) return false;
  if (words_.empty()) return true;
  const std::string& key = rows().searchKey(row);
  return std::all_of(words_.begin(), words_.end(),
                     [&](const std::string& word) { return key.find(word) != std::string::npos; });
}

bool RowsFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const std::string& a = rows().stored(left.row(), left.column());
  const std::string& b = rows().stored(right.row(), right.column());
  const ColumnKind kind = rows().view()->columns[static_cast<std::size_t>(left.column())].kind;
  if (kind == ColumnKind::Date) return a < b;
  if (kind == ColumnKind::Number || kind == ColumnKind::Flag) {
    const double x = text::Val(a);
    const double y = text::Val(b);
    if (x != y) return x < y;
  }
  return text::compare(a, b) < 0;
}

}  // namespace fidaleon::app
