#include "qt/views/GridView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTableView>

#include "qt/Appearance.h"

namespace fidaleon::qt {

using forms::Change;

namespace {

void setUp(QTableView& table) {
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setSelectionMode(QAbstractItemView::SingleSelection);
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setTabKeyNavigation(false);
  table.setAlternatingRowColors(true);
  table.setWordWrap(false);
  table.setShowGrid(false);
  table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table.setCornerButtonEnabled(false);
  QHeaderView& rows = *table.verticalHeader();
  rows.hide();
  rows.setSectionResizeMode(QHeaderView::Fixed);
  rows.setMinimumSectionSize(table.fontMetrics().height());
  rows.setDefaultSectionSize(table.fontMetrics().height() * 3 / 2);
  QHeaderView& columns = *table.horizontalHeader();
  columns.setHighlightSections(false);
  columns.setMinimumSectionSize(charsWidth(table, 1));
  columns.setStretchLastSection(true);
  table.setMinimumHeight(rows.defaultSectionSize() * 5 + columns.sizeHint().height());
  table.setMinimumWidth(charsWidth(table, 30));
}

}  // namespace

GridView::GridView(forms::Grid& grid, QWidget* parent)
    : ControlView(grid), grid_(grid), model_(grid), table_(new QTableView(parent)) {
  setUp(*table_);
  table_->setModel(&model_);
  idle_.setSingleShot(true);
  idle_.setInterval(0);
  connect(&idle_, &QTimer::timeout, this, [this] { flush(); });
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& row) { rowEntered(row.row() + 1); });
  connect(table_, &QTableView::clicked, this,
          [this](const QModelIndex& index) { clicked(index.row() + 1); });
  connect(table_, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { grid_.userDblClick(index.row() + 1); });
  connect(table_->horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int, int width) { widthDrawn(column, width); });
  watch();
}

QWidget* GridView::widget() const {
  return table_;
}

void GridView::refresh(Change what) {
  ControlView::refresh(what);
  if (what == Change::Grid) {
    stale_ = true;
    idle_.start();
  }
  if (what == Change::Selection && !stale_ && !showing_) showRow();
}

void GridView::flush() {
  if (!stale_) return;
  stale_ = false;
  idle_.stop();
  {
    const QScopedValueRollback guard(showing_, true);
    const bool sameShape =
        model_.rowCount() == grid_.rowCount() && model_.columnCount() == grid_.columns();
    if (!sameShape)
      model_.reread();
    else
      table_->viewport()->update();
    showWidths();
  }
  showRow();
}

void GridView::showRow() {
  const QScopedValueRollback guard(showing_, true);
  if (grid_.row() == 0) {
    table_->selectionModel()->clear();
    return;
  }
  // The column under the user's eyes stays where it is.
  const int column = std::max(0, table_->currentIndex().column());
  const QModelIndex cell = model_.index(grid_.row() - 1, column);
  if (table_->currentIndex() != cell || !table_->selectionModel()->isSelected(cell))
    table_->selectionModel()->setCurrentIndex(
        cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void GridView::showWidths() {
  for (int column = 0; column < grid_.columns(); ++column) {
    const int wanted = pixels(grid_.columnWidth(column));
    table_->setColumnHidden(column, wanted <= 0);
    const bool last = column == grid_.columns() - 1;
    if (wanted > 0 && !last && table_->columnWidth(column) != wanted)
      table_->setColumnWidth(column, wanted);
  }
}

void GridView::rowEntered(int row) {
  if (!showing_ && row > 0 && row != grid_.row()) grid_.setRow(row);
}

void GridView::clicked(int row) {
  if (row != grid_.row()) grid_.setRow(row);
}

void GridView::widthDrawn(int column, int pixels) {
  // Only what is drawn by hand: the last column also follows the width of the window.
  const bool last = column == grid_.columns() - 1;
  if (showing_ || last || pixels <= 0 || column >= grid_.columns()) return;
  const int twips = qRound(pixels / pixelsPerTwip(*table_));
  if (this->pixels(grid_.columnWidth(column)) != pixels) grid_.setColumnWidth(column, twips);
}

int GridView::pixels(int twips) const {
  return qRound(twips * pixelsPerTwip(*table_));
}

bool GridView::keyPressed(QKeyEvent& event) {
  if (ControlView::keyPressed(event)) return true;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (!enter || !grid_.onDblClick || grid_.row() == 0) return false;
  grid_.userDblClick(grid_.row());
  return true;
}

}  // namespace fidaleon::qt
