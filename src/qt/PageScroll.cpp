#include "qt/PageScroll.h"

#include <QScrollBar>

namespace fidaleon::qt {

PageScroll::PageScroll(QWidget* content, const QSize& room, QWidget* parent)
    : QScrollArea(parent), room_(room) {
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);
}

QSize PageScroll::sizeHint() const {
  QSize size = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
  // One that may have to scroll down must not then have to scroll sideways too.
  if (size.height() > room_.height() / 2) size.rwidth() += verticalScrollBar()->sizeHint().width();
  return size;
}

QSize PageScroll::minimumSizeHint() const {
  const QSize content = widget()->minimumSizeHint();
  const int bar = verticalScrollBar()->sizeHint().width();
  const int lines = fontMetrics().lineSpacing() * 8;
  return {std::min(content.width() + bar, room_.width() * 8 / 10),
          std::min(content.height(), lines)};
}

void reveal(QWidget& field) {
  for (QWidget* around = field.parentWidget(); around; around = around->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(around))
      area->ensureWidgetVisible(&field, 0, field.fontMetrics().height());
    if (around->isWindow()) return;
  }
}

}  // namespace fidaleon::qt
