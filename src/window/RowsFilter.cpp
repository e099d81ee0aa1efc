#include "window/RowsFilter.h"

#include <algorithm>
#include <sstream>

#include "text/Utf8.h"

namespace fidaleon::app {

// Both drop the order of rows and make it anew: taking rows out one by one is slow where many
// thousands go.
void RowsFilter::setText(const QString& text) {
  words_.clear();
  std::istringstream in(text::searchKey(text.toStdString()));
  for (std::string word; in >> word;) words_.push_back(word);
  invalidate();
}

void RowsFilter::setGroup(std::int32_t group) {
  if (group == group_) return;
  group_ = group;
  invalidate();
}

bool RowsFilter::filterAcceptsRow(int row, const QModelIndex&) const {
  if (group_ != 0 && rows().group(row) != group_) return false;
  if (words_.empty()) return true;
  const std::string& key = rows().searchKey(row);
  return std::all_of(words_.begin(), words_.end(),
                     [&](const std::string& word) { return key.find(word) != std::string::npos; });
}

bool RowsFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  return rows().place(left.row(), left.column()) < rows().place(right.row(), right.column());
}

}  // namespace fidaleon::app
