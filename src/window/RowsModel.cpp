#include "window/RowsModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "text/Dates.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr int AT_LEAST = 500;  // rows between two looks at the clock

std::string shownDate(std::string_view stored) {
  if (const auto day = text::parseStored(stored)) return text::toShort(*day);
  return text::isBlankDate(stored) ? std::string() : std::string(stored);
}

// A cell has one line.
std::string shownText(std::string_view stored) {
  if (stored == "---") return {};
  std::string line(stored);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
  return line;
}

// "Nuevo|Antiguo": the word of a flag that is set, and of one that is not.
std::string flagWord(const std::string& words, bool set) {
  const std::size_t bar = words.find('|');
  return set ? words.substr(0, bar) : words.substr(bar + 1);
}

// Paler than the other rows, and still easy to read.
QColor faded(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Text);
  const QColor base = palette.color(QPalette::Base);
  const auto mix = [](int a, int b) { return (a * 3 + b * 2) / 5; };
  return {mix(text.red(), base.red()), mix(text.green(), base.green()),
          mix(text.blue(), base.blue())};
}

int sign(double n) {
  return n < 0 ? -1 : n > 0 ? 1 : 0;
}

/// Below, equal or above 0, as the values of such a column sort.
int compared(ColumnKind kind, std::string_view a, std::string_view b) {
  if (kind == ColumnKind::Date || kind == ColumnKind::Time) return a.compare(b);
  if (kind == ColumnKind::Number || kind == ColumnKind::Flag) {
    if (const int by = sign(text::Val(a) - text::Val(b)); by != 0) return by;
  }
  return text::compare(a, b);
}

/// Says how far the sorting of so many is, and ends it by an error when nobody wants it any more.
class SortProgress {
 public:
  SortProgress(std::size_t count, const store::Progress& progress)
      : progress_(progress), whole_(static_cast<double>(count) * std::log2(count + 2.0)) {}
  void compared() {
    if (++done_ % BETWEEN != 0 || !progress_) return;
    const double part = static_cast<double>(done_) / whole_;
    if (!progress_(static_cast<int>(std::min(part, 0.99) * 1000)))
      throw store::Error(store::ErrorKind::Cancelled, "Se ha cancelado.");
  }

 private:
  static constexpr std::size_t BETWEEN = 4096;
  const store::Progress& progress_;
  double whole_;
  std::size_t done_ = 0;
};

/// Where each of the texts comes in their order.
std::vector<int> ranksOf(const Texts& texts, ColumnKind kind, const store::Progress& progress) {
  SortProgress told(texts.count(), progress);
  std::vector<std::uint32_t> sorted(texts.count());
  std::iota(sorted.begin(), sorted.end(), 0u);
  std::sort(sorted.begin(), sorted.end(), [&](auto a, auto b) {
    told.compared();
    return compared(kind, texts.at(a), texts.at(b)) < 0;
  });
  std::vector<int> ranks(sorted.size());
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    const bool equal = compared(kind, texts.at(sorted[i - 1]), texts.at(sorted[i])) == 0;
    ranks[sorted[i]] = ranks[sorted[i - 1]] + (equal ? 0 : 1);
  }
  return ranks;
}

struct OrderedBy {
  int column;
  ColumnKind kind;
};

/// The rows in the order of those columns, and of their keys where they are alike.
SlimRows ordered(SlimRows rows, const std::vector<OrderedBy>& by, const store::Progress& wanted) {
  SortProgress told(static_cast<std::size_t>(rows.count()), wanted);
  std::vector<int> order(static_cast<std::size_t>(rows.count()));
  std::iota(order.begin(), order.end(), 0);
  std::vector<std::vector<int>> ranks;
  for (const OrderedBy& b : by) ranks.push_back(ranksOf(rows.texts(b.column), b.kind, wanted));
  std::sort(order.begin(), order.end(), [&](int a, int b) {
    told.compared();
    for (std::size_t i = 0; i < by.size(); ++i) {
      const int of = ranks[i][rows.number(a, by[i].column)];
      const int other = ranks[i][rows.number(b, by[i].column)];
      if (of != other) return of < other;
    }
    return rows.key(a) < rows.key(b);
  });
  rows.arrange(order);
  return rows;
}

}  // namespace

RowsModel::~RowsModel() {
  giveUpOrdering();
}

void RowsModel::load(store::Connection& connection, const NodeView& view) {
  begin(connection, view, WHATEVER_IT_TAKES);
}

RowsModel::Reading RowsModel::begin(store::Connection& connection, const NodeView& view,
                                    Time atMost) {
  auto reader = std::make_unique<RowsReader>(connection, view);
  SlimRows first(view.columns.size());
  stop();
  reader_ = std::move(reader);
  read(first, atMost);
  beginResetModel();
  view_ = &view;
  rows_ = std::move(first);
  count_ = rows_.count();
  ranks_.assign(view.columns.size(), {});
  endResetModel();
  partial_ = reader_ != nullptr;
  if (partial_ && view.scattered) startAnew(connection);
  return reader_ ? Reading::More : Reading::Whole;
}

RowsModel::Reading RowsModel::renew(store::Connection& connection, Time atMost) {
  stop();
  startAnew(connection);
  return readOn(atMost);
}

void RowsModel::startAnew(store::Connection& connection) {
  using Order = RowsReader::Order;
  reader_ = std::make_unique<RowsReader>(connection, *view_,
                                         view_->scattered ? Order::AsTheyLie : Order::Listed);
  coming_.emplace(view_->columns.size());
}

RowsModel::Reading RowsModel::putInOrder(Time atMost) {
  constexpr Time AGAIN{1};  // it goes on by itself
  Time patience = atMost == WHATEVER_IT_TAKES ? atMost : AGAIN;
  if (!ordering_.valid()) {
    std::vector<OrderedBy> by;
    for (const std::string& field : view_->order)
      by.push_back({columnOf(field), kind(columnOf(field))});
    wanted_ = std::make_shared<std::atomic<bool>>(true);
    ordering_ = std::async(std::launch::async, [rows = std::move(*coming_), by = std::move(by),
                                                wanted = wanted_]() mutable {
      return ordered(std::move(rows), by, [wanted](int) { return wanted->load(); });
    });
    patience = atMost;
  }
  if (ordering_.wait_for(patience) != std::future_status::ready) return Reading::More;
  coming_ = ordering_.get();
  return Reading::Renewed;
}

bool RowsModel::giveUpOrdering() {
  if (!ordering_.valid()) return false;
  *wanted_ = false;
  ordering_.wait();
  ordering_ = {};
  return true;
}

RowsModel::Reading RowsModel::readOn(Time atMost) {
  if (isRead()) return Reading::Whole;
  if (coming_) {
    if (reader_ && read(*coming_, atMost) == Reading::More) return Reading::More;
    return view_->scattered ? putInOrder(atMost) : Reading::Renewed;
  }
  const Reading reading = read(rows_, atMost);
  partial_ = reading == Reading::More;
  if (rows_.count() > count_) {
    beginInsertRows({}, count_, rows_.count() - 1);
    count_ = rows_.count();
    endInsertRows();
  }
  return reading;
}

RowsModel::Reading RowsModel::read(SlimRows& rows, Time atMost) {
  const auto start = std::chrono::steady_clock::now();
  const int before = rows.count();
  try {
    for (ListRow row; reader_->next(row);) {
      rows.append(row);
      const int done = rows.count() - before;
      if (done % AT_LEAST == 0 && std::chrono::steady_clock::now() - start > atMost)
        return Reading::More;
    }
  } catch (...) {
    stop();
    throw;
  }
  reader_.reset();
  return Reading::Whole;
}

void RowsModel::takeOver() {
  beginResetModel();
  partial_ = false;
  rows_ = std::move(*coming_);
  coming_.reset();
  count_ = rows_.count();
  ranks_.assign(view_->columns.size(), {});
  endResetModel();
}

bool RowsModel::stop() {
  const bool ordering = giveUpOrdering();
  coming_.reset();
  return std::exchange(reader_, nullptr) != nullptr || ordering;
}

void RowsModel::clear() {
  stop();
  beginResetModel();
  view_ = nullptr;
  rows_ = SlimRows(0);
  count_ = 0;
  partial_ = false;
  ranks_.clear();
  endResetModel();
}

RowsModel::Update RowsModel::update(store::Connection& connection,
                                    const std::vector<std::int32_t>& keys) {
  Update result;
  const std::vector<ListRow> fresh = readRows(connection, *view_, keys);
  const auto nowhere = [&](std::int32_t key) {
    return std::none_of(fresh.begin(), fresh.end(), [&](const auto& r) { return r.key == key; });
  };
  for (const std::int32_t key : keys)
    if (const int row = rowOf(key); row >= 0 && nowhere(key)) remove(row);
  for (const ListRow& content : fresh) {
    const int row = rowOf(content.key);
    if (row >= 0 && group(row) == content.group && compared(content, row) == 0) {
      rows_.replace(row, content);
      emit dataChanged(index(row, 0), index(row, columnCount() - 1));
      continue;
    }
    if (row >= 0) remove(row);
    result.placed = insert(content) && result.placed;
    if (row < 0) result.added = std::max(result.added, content.key);
  }
  return result;
}

void RowsModel::remove(int row) {
  beginRemoveRows({}, row, row);
  rows_.remove(row);
  --count_;
  endRemoveRows();
}

// A book that has no rows yet has no place among the others that could be told here.
bool RowsModel::insert(const ListRow& content) {
  const auto [first, last] = rows_.rowsOf(content.group);
  if (first == last && count_ > 0) return false;
  int low = first;
  for (int high = last; low < high;) {
    const int middle = low + (high - low) / 2;
    if (compared(content, middle) > 0)
      low = middle + 1;
    else
      high = middle;
  }
  beginInsertRows({}, low, low);
  rows_.insert(low, content);
  ++count_;
  endInsertRows();
  return true;
}

/// Below, equal or above 0: where the row comes in the order of the list.
int RowsModel::compared(const ListRow& row, int other) const {
  for (const std::string& field : view_->order) {
    const auto column = static_cast<std::size_t>(columnOf(field));
    const std::string_view there = stored(other, static_cast<int>(column));
    const int difference = view_->columns[column].kind == ColumnKind::Number
                               ? sign(text::Val(row.cells[column]) - text::Val(there))
                               : text::compare(row.cells[column], there);
    if (difference != 0) return difference;
  }
  return row.key < key(other) ? -1 : row.key > key(other) ? 1 : 0;
}

int RowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

int RowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || !view_ ? 0 : static_cast<int>(view_->columns.size());
}

int RowsModel::columnOf(const std::string& field) const {
  const auto& columns = view_->columns;
  const auto at = std::find_if(columns.begin(), columns.end(),
                               [&](const ColumnView& c) { return c.field == field; });
  return at == columns.end() ? -1 : static_cast<int>(at - columns.begin());
}

int RowsModel::nextFrom(const std::string& day) const {
  const int column = columnOf(view_->day);
  if (column < 0) return -1;
  int next = -1;
  for (int row = 0; row < rowCount(); ++row)
    if (stored(row, column) >= day && (next < 0 || stored(row, column) < stored(next, column)))
      next = row;
  return next;
}

std::string RowsModel::shown(int row, int column) const {
  return shown(stored(row, column), column);
}

std::string RowsModel::shown(std::string_view text, int column) const {
  const ColumnView& c = view_->columns[static_cast<std::size_t>(column)];
  switch (c.kind) {
    case ColumnKind::Date:
      return shownDate(text);
    case ColumnKind::Time:
      return text::parseTime(text).value_or(std::string(text));
    case ColumnKind::Flag:
      return flagWord(c.word, text != "0" && !text.empty());
    default:
      return shownText(text);
  }
}

const std::vector<int>& RowsModel::ranksOfTexts(int column, const store::Progress& progress) const {
  std::vector<int>& all = ranks_[static_cast<std::size_t>(column)];
  if (all.empty()) all = ranksOf(rows_.texts(column), kind(column), progress);
  return all;
}

bool RowsModel::isBefore(int row, int other, int column) const {
  const std::vector<int>& all = ranksOfTexts(column);
  const std::size_t a = rows_.number(row, column);
  const std::size_t b = rows_.number(other, column);
  if (a < all.size() && b < all.size()) return all[a] < all[b];
  return app::compared(kind(column), stored(row, column), stored(other, column)) < 0;
}

std::vector<int> RowsModel::ranks(int column, const store::Progress& progress) const {
  std::vector<int>& known = ranks_[static_cast<std::size_t>(column)];
  if (known.size() != rows_.texts(column).count()) known.clear();  // texts have been added since
  const std::vector<int>& all = ranksOfTexts(column, progress);
  std::vector<int> ranks(static_cast<std::size_t>(count_));
  for (int row = 0; row < count_; ++row)
    ranks[static_cast<std::size_t>(row)] = all[rows_.number(row, column)];
  return ranks;
}

bool RowsModel::holds(int row, const std::string& word, Known& known) const {
  if (known.empty())
    for (int c = 0; c < columnCount(); ++c) known.push_back(holding(c, word));
  for (int c = 0; c < columnCount(); ++c) {
    const std::vector<bool>& column = known[static_cast<std::size_t>(c)];
    const std::size_t number = rows_.number(row, c);
    if (number < column.size() ? column[number]
                               : text::searchKey(shown(row, c)).find(word) != std::string::npos)
      return true;
  }
  return false;
}

std::vector<bool> RowsModel::holding(int column, const std::string& word) const {
  const Texts& texts = rows_.texts(column);
  std::vector<bool> found(texts.count());
  for (std::uint32_t n = 0; n < texts.count(); ++n)
    found[n] = text::searchKey(shown(texts.at(n), column)).find(word) != std::string::npos;
  return found;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(shown(index.row(), index.column()));
    case KeyRole:
      return key(index.row());
    case AnnulledRole:
      return annulled(index.row());
    default:
      return appearance(index.row(), index.column(), role);
  }
}

QVariant RowsModel::appearance(int row, int column, int role) const {
  const ColumnView& c = view_->columns[static_cast<std::size_t>(column)];
  if (role == Qt::TextAlignmentRole && c.kind == ColumnKind::Number)
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (!annulled(row)) return {};
  const bool mark = c.field == view_->annulled;
  if (role == Qt::FontRole) {
    QFont font;
    font.setStrikeOut(!mark);
    font.setBold(mark);
    return font;
  }
  if (role == Qt::ForegroundRole && !mark) return faded(QGuiApplication::palette());
  if (role == Qt::ToolTipRole) return tr("Partida anulada: conserva su folio y su número.");
  return {};
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || !view_)
    return QAbstractTableModel::headerData(section, orientation, role);
  const ColumnView& c = view_->columns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return QString::fromStdString(c.title);
  if (role == Qt::TextAlignmentRole)
    return QVariant((c.kind == ColumnKind::Number ? Qt::AlignRight : Qt::AlignLeft) |
                    Qt::AlignVCenter);
  return {};
}

}  // namespace fidaleon::app
