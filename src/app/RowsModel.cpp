#include "app/RowsModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

std::string shownDate(const std::string& stored) {
  if (const auto day = text::parseStored(stored)) return text::toShort(*day);
  return text::isBlankDate(stored) ? std::string() : stored;
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

}  // namespace

void RowsModel::load(store::Connection& connection, const NodeView& view) {
  std::vector<Row> rows;
  if (!view.node.SQLSelect.empty()) {
    auto set = connection.Execute(view.node.SQLSelect);
    for (; !set.EOF_(); set.MoveNext()) {
      Row row;
      row.key = static_cast<std::int32_t>(set.integer(view.key));
      if (!view.group.empty()) row.group = static_cast<std::int32_t>(set.integer(view.group));
      row.annulled = !view.annulled.empty() && set.flag(view.annulled);
      for (const ColumnView& column : view.columns) row.stored.push_back(set.text(column.field));
      rows.push_back(std::move(row));
    }
  }
  beginResetModel();
  view_ = &view;
  rows_ = std::move(rows);
  endResetModel();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || !view_ ? 0 : static_cast<int>(view_->columns.size());
}

const std::string& RowsModel::stored(int row, int column) const {
  return rows_[static_cast<std::size_t>(row)].stored[static_cast<std::size_t>(column)];
}

std::string RowsModel::shown(const Row& row, int column) const {
  const ColumnView& c = view_->columns[static_cast<std::size_t>(column)];
  const std::string& stored = row.stored[static_cast<std::size_t>(column)];
  if (c.kind == ColumnKind::Date) return shownDate(stored);
  if (c.kind == ColumnKind::Flag) return flagWord(c.word, stored != "0" && !stored.empty());
  return stored == "---" ? std::string() : stored;
}

const std::string& RowsModel::searchKey(int row) const {
  const Row& r = rows_[static_cast<std::size_t>(row)];
  if (r.search.empty())
    for (int c = 0; c < columnCount(); ++c) r.search += text::searchKey(shown(r, c)) + "\n";
  return r.search;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(shown(row, index.column()));
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
