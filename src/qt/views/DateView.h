#pragma once

#include <QDate>

#include "qt/views/LineView.h"

class QToolButton;

namespace fidaleon::qt {

/// A date that is typed, with a calendar to pick it from (the button, F4 or Alt+Down).
class DateView : public LineView {
 public:
  DateView(forms::DateField& field, QWidget* parent);
  QWidget* widget() const override;
  void showCalendar();

 protected:
  bool keyPressed(QKeyEvent& event) override;
  void showLocked() override;

 private:
  void pick(const QDate& day);
  QWidget* both_;
  QToolButton* button_;
};

}  // namespace fidaleon::qt
