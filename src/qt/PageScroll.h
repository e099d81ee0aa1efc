#pragma once

#include <QScrollArea>

namespace fidaleon::qt {

/// A page that is as tall as it needs where there is room, and scrolls where there is not.
class PageScroll : public QScrollArea {
 public:
  /// Takes the content over; `room` is the screen that the window has to fit.
  PageScroll(QWidget* content, const QSize& room, QWidget* parent);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  QSize room_;
};

/// Scrolls every page around a field that has just been reached, or in which one types.
void reveal(QWidget& field);

}  // namespace fidaleon::qt
