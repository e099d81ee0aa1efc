#include "forms/Form.h"

namespace fidaleon::forms {

Grid::Grid(Form& form, std::string name) : Control(form, std::move(name)) {}

void Grid::setColumns(int n) {
  headers_.resize(n);
  widths_.resize(n, 1440);
  for (Row& row : rows_) row.cells.resize(n);
  gridChanged();
}

void Grid::setHeader(int column, std::string text) {
  headers_.at(column) = std::move(text);
  gridChanged();
}

void Grid::setColumnWidth(int column, int twips) {
  widths_.at(column) = twips;
  gridChanged();
}

void Grid::clearRows() {
  rows_.clear();
  row_ = 0;
  gridChanged();
}

int Grid::addRow(std::vector<std::string> cells, std::int64_t key) {
  cells.resize(headers_.size());
  rows_.push_back({std::move(cells), key});
  gridChanged();
  return rowCount();
}

void Grid::removeRow(int row) {
  rows_.erase(rows_.begin() + (row - 1));
  if (row_ >= row) row_ = row_ == row ? 0 : row_ - 1;
  gridChanged();
}

const std::string& Grid::cell(int row, int column) const {
  return row == 0 ? headers_.at(column) : rows_.at(row - 1).cells.at(column);
}

void Grid::setCell(int row, int column, std::string text) {
  if (row == 0) return setHeader(column, std::move(text));
  rows_.at(row - 1).cells.at(column) = std::move(text);
  gridChanged();
}

void Grid::setRow(int row) {
  row_ = row >= 0 && row <= rowCount() ? row : 0;
  changed(Change::Selection);
  if (onRowChange) onRowChange();
}

void Grid::userDblClick(int row) {
  if (!usable()) return;
  setRow(row);
  if (onDblClick) onDblClick();
}

void Grid::beginUpdate() {
  ++updates_;
}

void Grid::endUpdate() {
  if (--updates_ == 0) changed(Change::Grid);
}

void Grid::gridChanged() {
  if (updates_ == 0) changed(Change::Grid);
}

}  // namespace fidaleon::forms
