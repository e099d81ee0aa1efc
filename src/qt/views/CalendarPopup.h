#pragma once

#include <QDate>
#include <QFrame>
#include <functional>

class QCalendarWidget;

namespace fidaleon::qt {

/// A month to pick a day from, below the field that asked for it. Closes by itself.
class CalendarPopup : public QFrame {
 public:
  /// `picked` gets an invalid date for "no date".
  CalendarPopup(QWidget* field, const QDate& shown, std::function<void(QDate)> picked);

 private:
  void choose(const QDate& day);
  QCalendarWidget* calendar_;
  std::function<void(QDate)> picked_;
};

}  // namespace fidaleon::qt
