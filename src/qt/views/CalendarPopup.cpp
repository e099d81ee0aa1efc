#include "qt/views/CalendarPopup.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>

namespace fidaleon::qt {

CalendarPopup::CalendarPopup(QWidget* field, const QDate& shown, std::function<void(QDate)> picked)
    : QFrame(field, Qt::Popup), calendar_(new QCalendarWidget(this)), picked_(std::move(picked)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  calendar_->setLocale(QLocale(QLocale::Spanish, QLocale::Spain));
  calendar_->setFirstDayOfWeek(Qt::Monday);
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar_->setGridVisible(true);
  calendar_->setSelectedDate(shown.isValid() ? shown : QDate::currentDate());
  auto* today = new QPushButton(QStringLiteral("&Hoy"), this);
  auto* none = new QPushButton(QStringLiteral("&Sin fecha"), this);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(today);
  buttons->addWidget(none);
  buttons->addStretch();
  auto* all = new QVBoxLayout(this);
  all->addWidget(calendar_);
  all->addLayout(buttons);
  connect(calendar_, &QCalendarWidget::clicked, this, [this](QDate day) { choose(day); });
  connect(calendar_, &QCalendarWidget::activated, this, [this](QDate day) { choose(day); });
  connect(today, &QPushButton::clicked, this, [this] { choose(QDate::currentDate()); });
  connect(none, &QPushButton::clicked, this, [this] { choose({}); });

  adjustSize();
  const QRect screen = field->screen()->availableGeometry();
  QPoint at = field->mapToGlobal(QPoint(0, field->height()));
  if (at.y() + height() > screen.bottom()) at.setY(field->mapToGlobal(QPoint()).y() - height());
  at.setX(std::clamp(at.x(), screen.left(), std::max(screen.left(), screen.right() - width())));
  at.setY(std::max(at.y(), screen.top()));
  move(at);
  calendar_->setFocus();
}

void CalendarPopup::choose(const QDate& day) {
  // A click may come as "clicked" and as "activated" both.
  const auto picked = std::exchange(picked_, nullptr);
  close();
  if (picked) picked(day);
}

}  // namespace fidaleon::qt
