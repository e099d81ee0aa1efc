#include "window/RowsReader.h"

#include <algorithm>

namespace fidaleon::app {
namespace {

constexpr std::int64_t AT_A_TIME = 2000;  // keys

int placeOf(const store::Recordset& rows, const std::string& field) {
  for (int f = 0; !field.empty() && f < rows.FieldCount(); ++f)
    if (rows.FieldName(f) == field) return f;
  return -1;
}

}  // namespace

RowsReader::RowsReader(store::Connection& connection, const NodeView& view, Order order)
    : connection_(connection), view_(view) {
  if (view.node.SQLSelect.empty()) return;
  if (order == Order::AsTheyLie) {
    const auto highest = connection.Execute("SELECT MAX(" + view.key + ") AS Mayor FROM " +
                                            view.parts.front().table);
    last_ = highest.integer("Mayor");
    openNext();
    return;
  }
  if (view.groups.empty()) {
    start(view.node.SQLSelect);
    return;
  }
  for (auto set = connection.Execute(view.groups); !set.EOF_(); set.MoveNext())
    groups_.push_back(static_cast<std::int32_t>(set.integer(0)));
  std::reverse(groups_.begin(), groups_.end());
  openNext();
}

bool RowsReader::openNext() {
  if (passed_ < last_) {
    start(statementOfRange(view_, passed_, passed_ + AT_A_TIME));
    passed_ += AT_A_TIME;
    return true;
  }
  if (groups_.empty()) return false;
  start(statementOfGroup(view_, groups_.back()));
  groups_.pop_back();
  return true;
}

void RowsReader::start(const std::string& statement) {
  rows_ = connection_.Execute(statement);
  if (key_ >= 0) return;
  key_ = placeOf(rows_, view_.key);
  group_ = placeOf(rows_, view_.group);
  annulled_ = placeOf(rows_, view_.annulled);
  for (const ColumnView& column : view_.columns) cells_.push_back(placeOf(rows_, column.field));
}

bool RowsReader::next(ListRow& row) {
  if (rows_.State() == 0) return false;
  while (rows_.EOF_())
    if (!openNext()) return false;
  row.key = static_cast<std::int32_t>(rows_.integer(key_));
  row.group = group_ < 0 ? 0 : static_cast<std::int32_t>(rows_.integer(group_));
  row.annulled = annulled_ >= 0 && rows_.integer(annulled_) != 0;
  row.cells.resize(cells_.size());
  for (std::size_t c = 0; c < cells_.size(); ++c) row.cells[c] = rows_.text(cells_[c]);
  rows_.MoveNext();
  return true;
}

std::vector<ListRow> readRows(store::Connection& connection, const NodeView& view,
                              const std::vector<std::int32_t>& keys) {
  NodeView these = view;
  these.node.SQLSelect = statementOfKeys(view, keys);
  these.groups.clear();
  RowsReader reader(connection, these);
  std::vector<ListRow> rows;
  for (ListRow row; reader.next(row);) rows.push_back(row);
  return rows;
}

}  // namespace fidaleon::app
