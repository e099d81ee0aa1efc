#include "qt/views/DateView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

#include "qt/Appearance.h"
#include "qt/Text.h"
#include "qt/views/CalendarPopup.h"

namespace fidaleon::qt {

namespace {

const QString SHORT_DATE = QStringLiteral("dd/MM/yyyy");

}  // namespace

DateView::DateView(forms::DateField& field, QWidget* parent)
    : LineView(field, parent), both_(new QWidget(parent)), button_(new QToolButton(both_)) {
  edit()->setPlaceholderText(QStringLiteral("dd/mm/aaaa"));
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setIcon(calendarIcon(*button_));
  button_->setToolTip(QStringLiteral("Elegir en el calendario (Alt + flecha abajo)"));
  button_->setAccessibleName(QStringLiteral("Calendario"));
  connect(button_, &QToolButton::clicked, this, [this] { showCalendar(); });
  auto* row = new QHBoxLayout(both_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  row->addWidget(edit());
  row->addWidget(button_);
  both_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  both_->setFocusProxy(edit());
}

QWidget* DateView::widget() const {
  return both_;
}

void DateView::showCalendar() {
  forms::Form& form = control().form();
  if (box().locked() || !box().usable() || !form.moveFocus(control())) return;
  const QDate shown = QDate::fromString(edit()->text().trimmed(), SHORT_DATE);
  auto* popup = new CalendarPopup(edit(), shown, [this](QDate day) { pick(day); });
  popup->show();
}

void DateView::pick(const QDate& day) {
  box().enterText(day.isValid() ? fromQt(day.toString(SHORT_DATE)) : std::string());
}

bool DateView::keyPressed(QKeyEvent& event) {
  const bool altDown = event.key() == Qt::Key_Down && event.modifiers() == Qt::AltModifier;
  if (event.key() != Qt::Key_F4 && !altDown) return LineView::keyPressed(event);
  showCalendar();
  return true;
}

void DateView::showLocked() {
  LineView::showLocked();
  button_->setEnabled(!box().locked());
}

}  // namespace fidaleon::qt
