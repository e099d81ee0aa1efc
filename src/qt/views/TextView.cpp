#include "qt/views/TextView.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QScopedValueRollback>

#include "qt/Appearance.h"
#include "qt/Keys.h"
#include "qt/Text.h"
#include "text/Utf8.h"

namespace fidaleon::qt {

using forms::Change;
using forms::KeyPress;

void TextView::refresh(Change what) {
  ControlView::refresh(what);
  if (what == Change::Locked || what == Change::Enabled) return showLocked();
  if (what == Change::Doubt) return showDoubt();
  if (what == Change::Text && std::exchange(pale_, box_.holdsDashes()) != pale_) showLocked();
  if (showing_ || (what != Change::Text && what != Change::Selection)) return;
  const QScopedValueRollback guard(showing_, true);
  if (what == Change::Text && shownText() != box_.text()) showText(box_.text(), editing_);
  if (shownText() == box_.text() && !editing_) showSelection(box_.selStart(), box_.selLength());
}

QPalette TextView::tone() const {
  QPalette palette;
  const QPalette& around = focusWidget()->parentWidget()->palette();
  if (box_.locked()) palette.setColor(QPalette::Base, lockedColour(around));
  if (box_.holdsDashes())
    palette.setColor(QPalette::Text, around.color(QPalette::Disabled, QPalette::Text));
  return palette;
}

void TextView::userEdited() {
  if (showing_) return;
  const QScopedValueRollback guard(editing_, true);
  box_.enterText(shownText());
  if (shownText() != box_.text()) {
    const QScopedValueRollback shown(showing_, true);
    showText(box_.text(), true);
  }
  selectionMoved();
}

void TextView::selectionMoved() {
  if (showing_ || shownText() != box_.text()) return;
  const QScopedValueRollback guard(showing_, true);
  const auto [start, length] = shownSelection();
  if (start != box_.selStart() || length != box_.selLength()) box_.setSelection(start, length);
}

int TextView::room() const {
  if (box_.maxLength() <= 0) return 1 << 20;
  return box_.maxLength() - static_cast<int>(text::length(box_.text())) + box_.selLength();
}

void TextView::insertFiltered(const std::string& text) {
  if (box_.locked() || text.empty()) return;
  insertText(toQt(text::left(text, std::max(0, room()))));
}

bool TextView::keyPressed(QKeyEvent& event) {
  selectionMoved();
  KeyPress press = toKeyPress(event);
  box_.filterKey(press);
  if (press.changed()) {
    insertFiltered(*press.replacement);
    return true;
  }
  const bool types = press.character >= U' ' && !press.ctrl && !press.alt;
  return types && room() <= 0;
}

bool TextView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::InputMethod && watched == focusWidget())
    return inputMethod(static_cast<QInputMethodEvent&>(*event));
  if (ControlView::eventFilter(watched, event)) return true;
  if (watched == focusWidget() && !box_.multiline()) selectAfterFirstClick(*event);
  return false;
}

// The press that brings the focus puts the caret under the pointer; unless it was drawn over a part
// of the text, the whole is selected when the button comes up.
void TextView::selectAfterFirstClick(const QEvent& event) {
  switch (event.type()) {
    case QEvent::FocusIn:
      clickedInto_ = static_cast<const QFocusEvent&>(event).reason() == Qt::MouseFocusReason;
      return;
    case QEvent::FocusOut:
      clickedInto_ = false;
      return;
    case QEvent::MouseButtonRelease:
      if (std::exchange(clickedInto_, false) && shownSelection().second == 0) box_.selectAll();
      return;
    default:
      return;
  }
}

bool TextView::inputMethod(QInputMethodEvent& event) {
  if (event.commitString().isEmpty()) return false;
  selectionMoved();
  std::string committed;
  bool changed = false;
  for (const char32_t letter : event.commitString().toUcs4()) {
    KeyPress press = characterKey(letter);
    box_.filterKey(press);
    changed = changed || press.changed();
    committed += press.changed() ? *press.replacement : text::toUtf8(std::u32string(1, letter));
  }
  if (!changed && static_cast<int>(text::length(committed)) <= room()) return false;
  // The widget still has to end its preview of the composition.
  QInputMethodEvent end;
  focusWidget()->removeEventFilter(this);
  QCoreApplication::sendEvent(focusWidget(), &end);
  focusWidget()->installEventFilter(this);
  insertFiltered(committed);
  return true;
}

}  // namespace fidaleon::qt
