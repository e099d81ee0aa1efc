#include "window/ChosenRows.h"

#include <QTableView>
#include <algorithm>
#include <numeric>
#include <utility>

#include "window/RowsFilter.h"

namespace fidaleon::app {
namespace {

using Stretch = std::pair<int, int>;  // first row and last

/// Where columns have been moved, the view tells each row once for each of them.
std::vector<Stretch> stretches(const QTableView& view) {
  std::vector<Stretch> told;
  for (const QItemSelectionRange& range : view.selectionModel()->selection())
    told.emplace_back(range.top(), range.bottom());
  std::sort(told.begin(), told.end());
  std::vector<Stretch> apart;
  for (const Stretch& next : told)
    if (apart.empty() || next.first > apart.back().second + 1)
      apart.push_back(next);
    else
      apart.back().second = std::max(apart.back().second, next.second);
  return apart;
}

}  // namespace

int chosenCount(const QTableView& view) {
  int count = 0;
  for (const auto& [first, last] : stretches(view)) count += last - first + 1;
  return count;
}

std::vector<int> chosenRows(const QTableView& view) {
  std::vector<int> rows;
  for (const auto& [first, last] : stretches(view))
    for (int row = first; row <= last; ++row) rows.push_back(row);
  return rows;
}

std::vector<std::int32_t> chosenKeys(const QTableView& view) {
  const auto& shown = static_cast<const RowsFilter&>(*view.model());
  std::vector<std::int32_t> keys;
  for (const int row : chosenRows(view))
    keys.push_back(shown.rows().key(shown.mapToSource(shown.index(row, 0)).row()));
  return keys;
}

// With Ctrl held, as for a command's key, the view alone would take the row out of those chosen.
void chooseOnly(QTableView& view, int row) {
  view.selectRow(row);
  view.selectionModel()->select(view.currentIndex(),
                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void chooseKeys(QTableView& view, std::vector<std::int32_t> keys) {
  std::sort(keys.begin(), keys.end());
  const auto& shown = static_cast<const RowsFilter&>(*view.model());
  QItemSelection chosen;
  const auto isOne = [&](int row) {
    return row < shown.rowCount() &&
           std::binary_search(keys.begin(), keys.end(),
                              shown.rows().key(shown.mapToSource(shown.index(row, 0)).row()));
  };
  for (int row = 0, first = -1; row <= shown.rowCount(); ++row) {
    if (isOne(row)) {
      if (first < 0) first = row;
    } else if (first >= 0) {
      chosen.select(shown.index(first, 0), shown.index(row - 1, shown.columnCount() - 1));
      first = -1;
    }
  }
  view.selectionModel()->select(chosen, QItemSelectionModel::ClearAndSelect);
}

}  // namespace fidaleon::app
