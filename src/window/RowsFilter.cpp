#include "window/RowsFilter.h"

#include <algorithm>
#include <sstream>
#include <tuple>
#include <utility>

#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr int LONG = 50000;  // rows, of which the order may take a while

}  // namespace

void RowsFilter::setSourceModel(QAbstractItemModel* rows) {
  beginResetModel();
  QAbstractProxyModel::setSourceModel(rows);
  connect(rows, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
    beginResetModel();
    for (Word& word : words_) word.known.clear();
  });
  connect(rows, &QAbstractItemModel::modelReset, this, [this] {
    if (isLong()) sorted_ = -1;  // sortIfRead() does it beside
    take(chosen({}));
    endResetModel();
  });
  connect(rows, &QAbstractItemModel::rowsInserted, this,
          [this](const QModelIndex&, int first, int last) { rowsCame(first, last); });
  connect(rows, &QAbstractItemModel::rowsAboutToBeRemoved, this,
          [this](const QModelIndex&, int first, int last) {
            for (int row = first; row <= last; ++row) hide(row);
          });
  connect(rows, &QAbstractItemModel::rowsRemoved, this,
          [this](const QModelIndex&, int first, int last) { rowsWent(first, last); });
  connect(rows, &QAbstractItemModel::dataChanged, this,
          [this](const QModelIndex& first, const QModelIndex& last) {
            rowsChanged(first.row(), last.row());
          });
  take(chosen({}));
  endResetModel();
}

void RowsFilter::setText(const QString& text) {
  words_.clear();
  std::istringstream in(text::searchKey(text.toStdString()));
  for (std::string word; in >> word;) words_.push_back({word});
  arrange();
}

void RowsFilter::setGroup(std::int32_t group) {
  if (group == group_) return;
  group_ = group;
  arrange();
}

bool RowsFilter::isLong() const {
  return beside_ && sourceModel() && rows().rowCount() > LONG;
}

void RowsFilter::sort(int column, Qt::SortOrder order) {
  const auto before = std::tuple(std::exchange(column_, column), std::exchange(order_, order),
                                 std::exchange(sorted_, column));
  if (sourceModel() && rows().isFilling()) sorted_ = -1;
  if (sorted_ < 0 || !isLong()) return arrange();
  std::vector<int> next;
  if (beside_([&](const store::Progress& progress) { next = chosen(progress); }))
    return arrange(std::move(next));
  std::tie(std::ignore, order_, sorted_) = before;
  column_ = sorted_;
  emit sortGivenUp(column_, order_);
}

bool RowsFilter::sortIfRead() {
  if (column_ == sorted_) return false;
  sort(column_, order_);
  return column_ == sorted_;
}

bool RowsFilter::accepts(int row) const {
  if (group_ != 0 && rows().group(row) != group_) return false;
  return std::all_of(words_.begin(), words_.end(),
                     [&](Word& word) { return rows().holds(row, word.text, word.known); });
}

bool RowsFilter::isBefore(int row, int other) const {
  if (sorted_ >= 0) {
    const bool up = order_ == Qt::AscendingOrder;
    if (rows().isBefore(row, other, sorted_)) return up;
    if (rows().isBefore(other, row, sorted_)) return !up;
  }
  return row < other;
}

std::vector<int> RowsFilter::chosen(const store::Progress& progress) const {
  std::vector<int> shown;
  const int count = sourceModel() ? rows().rowCount() : 0;
  for (int row = 0; row < count; ++row)
    if (accepts(row)) shown.push_back(row);
  return sorted_ >= 0 && sorted_ < columnCount() && !shown.empty() ? inOrder(shown, progress)
                                                                   : shown;
}

// The rows are dealt out to their ranks: comparing them with each other is slow where there are
// very many.
std::vector<int> RowsFilter::inOrder(const std::vector<int>& shown,
                                     const store::Progress& progress) const {
  const std::vector<int> ranks = rows().ranks(sorted_, progress);
  const int last = *std::max_element(ranks.begin(), ranks.end());
  const auto slot = [&](int row) {
    const int rank = ranks[static_cast<std::size_t>(row)];
    return static_cast<std::size_t>(order_ == Qt::AscendingOrder ? rank : last - rank);
  };
  std::vector<std::size_t> next(static_cast<std::size_t>(last) + 2);
  for (const int row : shown) ++next[slot(row) + 1];
  for (std::size_t i = 1; i < next.size(); ++i) next[i] += next[i - 1];
  std::vector<int> ordered(shown.size());
  for (const int row : shown) ordered[next[slot(row)]++] = row;
  return ordered;
}

void RowsFilter::take(std::vector<int> shown) {
  if (sorted_ >= columnCount()) sorted_ = -1;
  shown_ = std::move(shown);
  number();
}

void RowsFilter::number() {
  place_.assign(sourceModel() ? static_cast<std::size_t>(sourceModel()->rowCount()) : 0, -1);
  for (std::size_t place = 0; place < shown_.size(); ++place)
    place_[static_cast<std::size_t>(shown_[place])] = static_cast<int>(place);
}

/// Who looks at them anew keeps what is chosen, wherever it goes.
void RowsFilter::arrange(std::vector<int> shown) {
  emit layoutAboutToBeChanged();
  const QModelIndexList kept = persistentIndexList();
  QModelIndexList sources;
  for (const QModelIndex& index : kept) sources.push_back(mapToSource(index));
  take(std::move(shown));
  QModelIndexList now;
  for (const QModelIndex& source : sources) now.push_back(mapFromSource(source));
  changePersistentIndexList(kept, now);
  emit layoutChanged();
}

void RowsFilter::show(int row) {
  const auto at = std::lower_bound(shown_.begin(), shown_.end(), row,
                                   [this](int there, int it) { return isBefore(there, it); });
  const int place = static_cast<int>(at - shown_.begin());
  beginInsertRows({}, place, place);
  shown_.insert(at, row);
  number();
  endInsertRows();
}

void RowsFilter::hide(int row) {
  const int place = place_[static_cast<std::size_t>(row)];
  if (place < 0) return;
  beginRemoveRows({}, place, place);
  shown_.erase(shown_.begin() + place);
  number();
  endRemoveRows();
}

// Many come only at the end of a list that is being read.
void RowsFilter::rowsCame(int first, int last) {
  const int count = last - first + 1;
  const bool atTheEnd = first == static_cast<int>(place_.size());
  if (!atTheEnd)
    for (int& row : shown_) row += row >= first ? count : 0;
  place_.insert(place_.begin() + first, static_cast<std::size_t>(count), -1);
  if (count == 1) {
    if (accepts(first)) show(first);
    return;
  }
  if (!atTheEnd || sorted_ >= 0) return arrange();
  std::vector<int> fresh;
  for (int row = first; row <= last; ++row)
    if (accepts(row)) fresh.push_back(row);
  if (fresh.empty()) return;
  const int place = rowCount();
  beginInsertRows({}, place, place + static_cast<int>(fresh.size()) - 1);
  for (const int row : fresh) {
    place_[static_cast<std::size_t>(row)] = static_cast<int>(shown_.size());
    shown_.push_back(row);
  }
  endInsertRows();
}

/// They are no longer among those that are shown.
void RowsFilter::rowsWent(int first, int last) {
  const int count = last - first + 1;
  for (int& row : shown_) row -= row > last ? count : 0;
  number();
}

void RowsFilter::rowsChanged(int first, int last) {
  for (int row = first; row <= last; ++row) {
    const int place = place_[static_cast<std::size_t>(row)];
    const auto at = [&](int n) { return shown_[static_cast<std::size_t>(n)]; };
    const bool stays = place >= 0 && (place == 0 || isBefore(at(place - 1), row)) &&
                       (place + 1 == rowCount() || isBefore(row, at(place + 1)));
    if (accepts(row) && stays) {
      emit dataChanged(index(place, 0), index(place, columnCount() - 1));
    } else if (accepts(row) || place >= 0) {
      hide(row);
      if (accepts(row)) show(row);
    }
  }
}

int RowsFilter::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int RowsFilter::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || !sourceModel() ? 0 : sourceModel()->columnCount();
}

QModelIndex RowsFilter::index(int row, int column, const QModelIndex& parent) const {
  return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex RowsFilter::parent(const QModelIndex&) const {
  return {};
}

QModelIndex RowsFilter::mapToSource(const QModelIndex& shown) const {
  if (!shown.isValid()) return {};
  return sourceModel()->index(shown_[static_cast<std::size_t>(shown.row())], shown.column());
}

QModelIndex RowsFilter::mapFromSource(const QModelIndex& source) const {
  if (!source.isValid()) return {};
  const int place = place_[static_cast<std::size_t>(source.row())];
  return place < 0 ? QModelIndex() : createIndex(place, source.column());
}

QVariant RowsFilter::headerData(int section, Qt::Orientation orientation, int role) const {
  return orientation == Qt::Horizontal && sourceModel()
             ? sourceModel()->headerData(section, orientation, role)
             : QVariant();
}

}  // namespace fidaleon::app
