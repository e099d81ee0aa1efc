#include "qt/views/ListBoxView.h"

#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include "qt/Appearance.h"

namespace fidaleon::qt {

namespace {

/// A list of uniform lines asks for the size of one: it gets that of the longest, so that it
/// scrolls to the end of each instead of cutting them.
class LongestLine : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const auto width = [&](int row) {
      return option.fontMetrics.horizontalAdvance(index.siblingAtRow(row).data().toString());
    };
    int longest = index.row();
    int widest = width(longest);
    for (int row = 0; row < index.model()->rowCount(); ++row)
      if (const int w = width(row); w > widest) {
        widest = w;
        longest = row;
      }
    return QStyledItemDelegate::sizeHint(option, index.siblingAtRow(longest));
  }
};

}  // namespace

ListBoxView::ListBoxView(forms::ListBox& list, QWidget* parent)
    : ListView(list), box_(list), view_(new QListView(parent)) {
  view_->setUniformItemSizes(true);
  view_->setItemDelegate(new LongestLine(view_));
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
  if (showing() || taking_ || !box_.multiSelect()) return;
  if (box_.locked()) return refresh(forms::Change::Selection);
  const QScopedValueRollback guard(taking_, true);
  for (int row = 0; row < box_.listCount(); ++row) {
    const bool on = view_->selectionModel()->isRowSelected(row);
    if (on != box_.selected(row)) box_.setSelected(row, on);
  }
}

void ListBoxView::showSelection() {
  if (taking_) return;
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
  selection.setCurrentIndex(model().index(box_.listIndex()), QItemSelectionModel::NoUpdate);
}

void ListBoxView::showLocked() {
  QPalette palette;
  if (box_.locked())
    palette.setColor(QPalette::Base, lockedColour(view_->parentWidget()->palette()));
  view_->setPalette(palette);
}

}  // namespace fidaleon::qt
