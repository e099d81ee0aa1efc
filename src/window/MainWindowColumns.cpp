// Which columns a list shows, in which order and how wide; each user finds them as they were left.

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QTableView>

#include "window/MainWindow.h"

namespace fidaleon::app {

void MainWindow::applyColumns() {
  if (node_->columns.empty()) return;
  QHeaderView* header = table_->horizontalHeader();
  const std::string state = read("columnas." + node_->node.Nombre);
  if (state.empty() || !header->restoreState(QByteArray::fromBase64(state.c_str())))
    showColumnsAsAtFirst();
  shown_.sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
}

void MainWindow::showColumnsAsAtFirst() {
  QHeaderView* header = table_->horizontalHeader();
  header->setSortIndicator(-1, Qt::AscendingOrder);
  const int letter = table_->fontMetrics().averageCharWidth();
  for (int c = 0; c < static_cast<int>(node_->columns.size()); ++c) {
    header->moveSection(header->visualIndex(c), c);
    header->setSectionHidden(c, false);
    table_->setColumnWidth(c, node_->columns[static_cast<std::size_t>(c)].chars * letter + 24);
  }
}

void MainWindow::rememberColumns() {
  if (!node_ || node_->columns.empty()) return;
  write("columnas." + node_->node.Nombre,
        table_->horizontalHeader()->saveState().toBase64().toStdString());
}

void MainWindow::chooseColumns() {
  QHeaderView* header = table_->horizontalHeader();
  QMenu menu(this);
  for (int c = 0; c < header->count(); ++c) {
    QAction* column =
        menu.addAction(QString::fromStdString(node_->columns[static_cast<std::size_t>(c)].title));
    column->setCheckable(true);
    column->setChecked(!header->isSectionHidden(c));
    // One has to stay.
    column->setEnabled(header->isSectionHidden(c) ||
                       header->count() - header->hiddenSectionCount() > 1);
    connect(column, &QAction::toggled, header,
            [header, c](bool seen) { header->setSectionHidden(c, !seen); });
  }
  menu.addSeparator();
  connect(menu.addAction(tr("Como al &principio")), &QAction::triggered, this, [this] {
    showColumnsAsAtFirst();
    shown_.sort(-1);
  });
  menu.setActiveAction(menu.actions().constFirst());
  menu.exec(header->mapToGlobal(QPoint(0, header->height())));
  rememberColumns();
}

}  // namespace fidaleon::app
