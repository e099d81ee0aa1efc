#include "window/RowsFilter.h"

#include <algorithm>
#include <sstream>

#include "text/Utf8.h"

namespace fidaleon::app {

void RowsFilter::setSourceModel(QAbstractItemModel* rows) {
  QSortFilterProxyModel::setSourceModel(rows);
  connect(rows, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
    for (Word& word : words_) word.known.clear();
  });
}

// Both drop the order of rows and make it anew: taking rows out one by one is slow where many
// thousands go.
void RowsFilter::setText(const QString& text) {
  words_.clear();
  std::istringstream in(text::searchKey(text.toStdString()));
  for (std::string word; in >> word;) words_.push_back({word});
  invalidate();
}

void RowsFilter::setGroup(std::int32_t group) {
  if (group == group_) return;
  group_ = group;
  invalidate();
}

void RowsFilter::sort(int column, Qt::SortOrder order) {
  column_ = column;
  order_ = order;
  QSortFilterProxyModel::sort(sourceModel() && rows().isFilling() ? -1 : column, order);
}

bool RowsFilter::sortIfRead() {
  if (column_ == sortColumn() && order_ == sortOrder()) return false;
  sort(column_, order_);
  return column_ == sortColumn();
}

bool RowsFilter::filterAcceptsRow(int row, const QModelIndex&) const {
  if (group_ != 0 && rows().group(row) != group_) return false;
  return std::all_of(words_.begin(), words_.end(),
                     [&](Word& word) { return rows().holds(row, word.text, word.known); });
}

bool RowsFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  return rows().isBefore(left.row(), right.row(), left.column());
}

}  // namespace fidaleon::app
