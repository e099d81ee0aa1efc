#include "qt/views/ListBoxView.h"

#include <QListView>
#include <QMouseEvent>

#include "qt/Appearance.h"

namespace fidaleon::qt {

ListBoxView::ListBoxView(forms::ListBox& list, QWidget* parent)
    : ListView(list), box_(list), view_(new QListView(parent)) {
  view_->setUniformItemSizes(true);
  view_->setTabKeyNavigation(false);
  view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view_->setSelectionMode(list.multiSelect() ? QAbstractItemView::MultiSelection
                                             : QAbstractItemView::SingleSelection);
  view_->setModel(&model());
  const int lines = view_->fontMetrics().height() + 4;
  view_->setMinimumHeight(lines * std::min(list.rows(), 6) + 2 * view_->frameWidth());
  view_->setMinimumWidth(charsWidth(*view_, 14));
  connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& row) { rowEntered(row.row()); });
  connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { takeSelection(); });
  connect(view_, &QListView::clicked, this, [this](const QModelIndex& i) { clicked(i.row()); });
  connect(view_, &QListView::doubleClicked, this, [this] {
    if (box_.usable() && box_.onDblClick) box_.onDblClick();
  });
  watch();
}

QWidget* ListBoxView::widget() const {
  return view_;
}

bool ListBoxView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) entered_ = -1;
  if (ListView::eventFilter(watched, event)) return true;
  return locked() && watched == view_->viewport() && event->type() == QEvent::MouseButtonPress;
}

void ListBoxView::rowEntered(int row) {
  if (showing() || row < 0) return;
  entered_ = row;
  choose(row);
}

void ListBoxView::clicked(int row) {
  if (row != std::exchange(entered_, -1)) choose(row);
}

void ListBoxView::takeSelection() {
  if (showing() || !box_.multiSelect() || box_.locked()) return;
  for (int row = 0; row < box_.listCount(); ++row) {
    const bool on = view_->selectionModel()->isRowSelected(row);
    if (on != box_.selected(row)) box_.setSelected(row, on);
  }
}

void ListBoxView::showSelection() {
  QItemSelectionModel& selection = *view_->selectionModel();
  if (!box_.multiSelect()) {
    const QModelIndex row = model().index(box_.listIndex());
    return selection.setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
  }
  for (int row = 0; row < model().rowCount(); ++row) {
    const bool on = box_.selected(row);
    if (selection.isRowSelected(row) != on)
      selection.select(model().index(row),
                       on ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
  }
}

void ListBoxView::showLocked() {
  QPalette palette;
  if (box_.locked())
    palette.setColor(QPalette::Base, lockedColour(view_->parentWidget()->palette()));
  view_->setPalette(palette);
}

}  // namespace fidaleon::qt
