#include "qt/views/ComboView.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QListView>
#include <QProxyStyle>

#include "qt/Appearance.h"

namespace fidaleon::qt {

namespace {

/// Long lists open as a list with a scroll bar, not as a menu over the whole screen.
class ListPopups : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_Popup) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

ComboView::ComboView(forms::ComboBox& list, QWidget* parent)
    : ListView(list), combo_(new QComboBox(parent)) {
  auto* style = new ListPopups;
  style->setParent(combo_);
  combo_->setStyle(style);
  combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo_->setMinimumContentsLength(8);
  combo_->setMaxVisibleItems(15);
  if (auto* lines = qobject_cast<QListView*>(combo_->view())) lines->setUniformItemSizes(true);
  combo_->setModel(&model());
  connect(combo_, &QComboBox::activated, this, [this](int index) { choose(index); });
  watch();
}

ComboView::~ComboView() = default;

QWidget* ComboView::widget() const {
  return combo_;
}

void ComboView::fixWidth(int letters) {
  combo_->setMinimumContentsLength(letters);
  combo_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

bool ComboView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == combo_ && event->type() == QEvent::Wheel) {
    // Scrolling a page must not change a choice under the pointer.
    event->ignore();
    return true;
  }
  const bool press =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  if (ListView::eventFilter(watched, event)) return true;
  return press && locked();
}

bool ComboView::keyPressed(QKeyEvent& event) {
  if (ListView::keyPressed(event)) return true;
  return locked() && event.key() == Qt::Key_Space;
}

void ComboView::showSelection() {
  combo_->setCurrentIndex(list().listIndex());
}

void ComboView::showLocked() {
  QPalette palette;
  if (list().locked()) {
    const QColor flat = lockedColour(combo_->parentWidget()->palette());
    palette.setColor(QPalette::Button, flat);
    palette.setColor(QPalette::Base, flat);
  }
  combo_->setPalette(palette);
}

}  // namespace fidaleon::qt
