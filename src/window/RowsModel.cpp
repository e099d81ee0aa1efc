#include "window/RowsModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "text/Dates.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

std::string shownDate(const std::string& stored) {
  if (const auto day = text::parseStored(stored)) return text::toShort(*day);
  return text::isBlankDate(stored) ? std::string() : stored;
}

// A cell has one line.
std::string shownText(const std::string& stored) {
  if (stored == "---") return {};
  std::string line = stored;
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

/// Folds texts for the filter. Taking accents off is slow, and the same names and towns come
/// again and again.
class Folder {
 public:
  void append(std::string& key, const std::string& text) {
    if (std::all_of(text.begin(), text.end(), [](unsigned char c) { return c < 0x80; })) {
      key += text::foldCase(text);
      return;
    }
    const auto [known, isNew] = known_.try_emplace(text);
    if (isNew) known->second = text::searchKey(text);
    key += known->second;
  }

 private:
  std::unordered_map<std::string, std::string> known_;
};

/// Below, equal or above 0, as the values of such a column sort.
int compared(ColumnKind kind, std::string_view a, std::string_view b) {
  if (kind == ColumnKind::Date || kind == ColumnKind::Time) return a.compare(b);
  if (kind == ColumnKind::Number || kind == ColumnKind::Flag) {
    const double x = text::Val(a);
    const double y = text::Val(b);
    if (x != y) return x < y ? -1 : 1;
  }
  return text::compare(a, b);
}

}  // namespace

void RowsModel::load(store::Connection& connection, const NodeView& view) {
  Content content = read(connection, view);
  beginResetModel();
  view_ = &view;
  rows_ = std::move(content.rows);
  cells_ = std::move(content.cells);
  search_.clear();
  places_.assign(view.columns.size(), {});
  endResetModel();
}

RowsModel::Content RowsModel::read(store::Connection& connection, const NodeView& view) {
  Content content;
  if (view.node.SQLSelect.empty()) return content;
  auto set = connection.Execute(view.node.SQLSelect);
  const auto count = static_cast<std::size_t>(set.RecordCount());
  content.rows.reserve(count);
  content.cells.reserve(count * view.columns.size());
  for (; !set.EOF_(); set.MoveNext()) {
    Row row;
    row.key = static_cast<std::int32_t>(set.integer(view.key));
    if (!view.group.empty()) row.group = static_cast<std::int32_t>(set.integer(view.group));
    row.annulled = !view.annulled.empty() && set.flag(view.annulled);
    for (const ColumnView& column : view.columns) content.cells.push_back(set.text(column.field));
    content.rows.push_back(row);
  }
  return content;
}

int RowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || !view_ ? 0 : static_cast<int>(view_->columns.size());
}

std::vector<std::int32_t> RowsModel::keys() const {
  std::vector<std::int32_t> keys;
  keys.reserve(rows_.size());
  for (const Row& row : rows_) keys.push_back(row.key);
  return keys;
}

int RowsModel::rowOf(std::int32_t key) const {
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.key == key; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int RowsModel::nextFrom(const std::string& day) const {
  const auto& columns = view_->columns;
  const auto at = std::find_if(columns.begin(), columns.end(),
                               [&](const ColumnView& c) { return c.field == view_->day; });
  if (at == columns.end()) return -1;
  const int column = static_cast<int>(at - columns.begin());
  int next = -1;
  for (int row = 0; row < rowCount(); ++row)
    if (stored(row, column) >= day && (next < 0 || stored(row, column) < stored(next, column)))
      next = row;
  return next;
}

const std::string& RowsModel::stored(int row, int column) const {
  return cells_[static_cast<std::size_t>(row) * view_->columns.size() +
                static_cast<std::size_t>(column)];
}

std::string RowsModel::shown(int row, int column) const {
  const ColumnView& c = view_->columns[static_cast<std::size_t>(column)];
  const std::string& text = stored(row, column);
  switch (c.kind) {
    case ColumnKind::Date:
      return shownDate(text);
    case ColumnKind::Time:
      return text::parseTime(text).value_or(text);
    case ColumnKind::Flag:
      return flagWord(c.word, text != "0" && !text.empty());
    default:
      return shownText(text);
  }
}

int RowsModel::place(int row, int column) const {
  std::vector<int>& all = places_[static_cast<std::size_t>(column)];
  if (all.empty()) all = places(column);
  return all[static_cast<std::size_t>(row)];
}

std::vector<int> RowsModel::places(int column) const {
  const ColumnKind kind = view_->columns[static_cast<std::size_t>(column)].kind;
  std::unordered_map<std::string_view, int> placeOf;
  for (int row = 0; row < rowCount(); ++row) placeOf.try_emplace(stored(row, column));
  std::vector<std::string_view> values;
  for (const auto& [value, place] : placeOf) values.push_back(value);
  std::sort(values.begin(), values.end(),
            [&](std::string_view a, std::string_view b) { return compared(kind, a, b) < 0; });
  for (std::size_t i = 1; i < values.size(); ++i)
    placeOf[values[i]] =
        placeOf[values[i - 1]] + (compared(kind, values[i - 1], values[i]) != 0 ? 1 : 0);
  std::vector<int> places;
  for (int row = 0; row < rowCount(); ++row) places.push_back(placeOf[stored(row, column)]);
  return places;
}

const std::string& RowsModel::searchKey(int row) const {
  if (search_.empty()) makeSearchKeys();
  return search_[static_cast<std::size_t>(row)];
}

void RowsModel::makeSearchKeys() const {
  Folder folder;
  search_.resize(rows_.size());
  for (int row = 0; row < rowCount(); ++row) {
    std::string& key = search_[static_cast<std::size_t>(row)];
    for (int column = 0; column < columnCount(); ++column) {
      folder.append(key, shown(row, column));
      key += '\n';
    }
  }
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(shown(index.row(), index.column()));
    case KeyRole:
      return row.key;
    case AnnulledRole:
      return row.annulled;
    case SearchRole:
      return QString::fromStdString(searchKey(index.row()));
    default:
      return appearance(row, index.column(), role);
  }
}

QVariant RowsModel::appearance(const Row& row, int column, int role) const {
  const ColumnView& c = view_->columns[static_cast<std::size_t>(column)];
  if (role == Qt::TextAlignmentRole && c.kind == ColumnKind::Number)
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (!row.annulled) return {};
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
