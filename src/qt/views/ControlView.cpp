#include "qt/views/ControlView.h"

#include <QAbstractScrollArea>
#include <QEvent>

#include "qt/Appearance.h"
#include "qt/Keys.h"
#include "qt/Text.h"

namespace fidaleon::qt {

void ControlView::refresh(forms::Change what) {
  switch (what) {
    case forms::Change::Enabled:
      return widget()->setEnabled(control_.enabled());
    case forms::Change::Visible:
      return widget()->setVisible(control_.visible());
    case forms::Change::ToolTip:
      return widget()->setToolTip(toQt(control_.toolTip()).toHtmlEscaped());
    case forms::Change::Caption:
      return showCaption();
    default:
      return;
  }
}

void ControlView::refreshAll() {
  using forms::Change;
  for (const Change what : {Change::Enabled, Change::Visible, Change::Text, Change::Caption,
                            Change::Items, Change::Selection, Change::Locked, Change::Grid,
                            Change::Tab, Change::Progress, Change::ToolTip})
    refresh(what);
  flush();
}

void ControlView::nameForAccessibility() {
  std::string name;
  if (control_.label())
    name = control_.label()->caption();
  else if (!control_.toolTip().empty())
    name = control_.toolTip();
  else if (control_.frame())
    name = control_.frame()->caption();
  else if (dynamic_cast<const forms::Grid*>(&control_))
    name = control_.form().caption();
  const auto* option = dynamic_cast<const forms::OptionButton*>(&control_);
  if (option && !name.empty()) name += " " + option->caption();
  if (!name.empty()) focusWidget()->setAccessibleName(plainCaption(name));
}

void ControlView::fixWidth(int letters) {
  widget()->setFixedWidth(charsWidth(*widget(), letters + 2));
}

void ControlView::watch() {
  focusWidget()->installEventFilter(this);
  if (auto* area = qobject_cast<QAbstractScrollArea*>(focusWidget()))
    area->viewport()->installEventFilter(this);
}

bool ControlView::keyPressed(QKeyEvent& event) {
  if (!control_.onKeyPress) return false;
  forms::KeyPress press = toKeyPress(event);
  control_.onKeyPress(press);
  return press.changed();
}

namespace {

/// Keys that are the form's, whatever the widget would do with them: those that switch its tabs,
/// accept it, or take what stood in the entry before.
bool isForTheForm(const QKeyEvent& event, const forms::Form& form) {
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return ctrl;
    case Qt::Key_F4:
      return form.takesFormer() && !ctrl && !event.modifiers().testFlag(Qt::AltModifier);
    default:
      return false;
  }
}

}  // namespace

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      flush();
      if (isForTheForm(static_cast<QKeyEvent&>(*event), control_.form())) {
        event->ignore();
        return true;
      }
      return watched == focusWidget() && keyPressed(static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
      flush();
      // The field that had the focus refused to be left: what was aimed at another one is dropped.
      return focusWidget()->focusPolicy() & Qt::ClickFocus &&
             control_.form().activeControl() != &control_;
    default:
      return false;
  }
}

}  // namespace fidaleon::qt
