// The list of the main window, when another desk has changed the parish.

#include <QApplication>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>

#include "window/MainWindow.h"

namespace fidaleon::app {
namespace {

/// The part of a table that is in sight, by the row on top of it.
class Sight {
 public:
  explicit Sight(QTableView& table)
      : table_(table),
        across_(table.horizontalScrollBar()->value()),
        down_(table.verticalScrollBar()->value()),
        top_(table.indexAt({0, 0}).data(RowsModel::KeyRole).toInt()) {}

  void restore(const QModelIndex& top) const {
    table_.verticalScrollBar()->setValue(down_);
    if (top.isValid()) table_.scrollTo(top, QAbstractItemView::PositionAtTop);
    table_.horizontalScrollBar()->setValue(across_);
  }
  std::int32_t top() const { return top_; }

 private:
  QTableView& table_;
  int across_;
  int down_;
  std::int32_t top_;
};

}  // namespace

void MainWindow::renewIfChanged() {
  const bool occupied =
      busy_ || QApplication::activeModalWidget() || QApplication::activePopupWidget();
  if (occupied || !node_ || !hasRows(node_->kind) || !others_.since()) return;
  const std::int32_t keep = choice().id;
  const int place = table_->currentIndex().row();
  const Sight sight(*table_);
  loadRows();
  if (keep != 0 && !chooseRow(keep) && shown_.rowCount() > 0)
    table_->selectRow(std::clamp(place, 0, shown_.rowCount() - 1));
  sight.restore(shown_.mapFromSource(rows_.index(rows_.rowOf(sight.top()), 0)));
  updateCommands();
}

}  // namespace fidaleon::app
