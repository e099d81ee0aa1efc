#pragma once

#include <QObject>
#include <QWidget>

#include "forms/Form.h"

namespace fidaleon::qt {

/// A control of a form and the widget that shows it. Reads everything from the control, tells it
/// what the user does, and holds no state of its own. The widget belongs to its parent widget.
class ControlView : public QObject {
 public:
  explicit ControlView(forms::Control& control) : control_(control) {}

  forms::Control& control() const { return control_; }
  /// What stands in the layout.
  virtual QWidget* widget() const = 0;
  /// What takes the keyboard.
  virtual QWidget* focusWidget() const { return widget(); }
  /// Brings a change of the control to the widget.
  virtual void refresh(forms::Change what);
  /// Brings changes to the widget that were put off until the program is idle.
  virtual void flush() {}
  /// All of it, once the widget stands in its window.
  void refreshAll();
  /// The mnemonics of the form may have moved.
  virtual void showCaption() {}
  void nameForAccessibility();
  /// Room for that many letters, neither less nor more.
  virtual void fixWidth(int letters);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  /// Call once in the constructor, when the widgets exist.
  void watch();
  /// A key before the widget sees it; true when it goes no further.
  virtual bool keyPressed(QKeyEvent& event);
  /// The user may not change what the control holds.
  virtual bool locked() const { return false; }

 private:
  forms::Control& control_;
};

}  // namespace fidaleon::qt
