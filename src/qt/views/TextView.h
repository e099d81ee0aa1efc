#pragma once

#include "qt/views/ControlView.h"

class QInputMethodEvent;

namespace fidaleon::qt {

/// What one-line and many-line fields have in common: keys are shown to the form's handlers first
/// and left to the widget when nobody changes them, so that undo works; all other ways of text
/// into the field (paste, drop, input methods) are cleaned by the control afterwards.
class TextView : public ControlView {
 public:
  explicit TextView(forms::TextBox& box) : ControlView(box), box_(box) {}
  void refresh(forms::Change what) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  forms::TextBox& box() const { return box_; }
  bool keyPressed(QKeyEvent& event) override;
  bool locked() const override { return box_.locked(); }
  /// To be connected to the widget's signals.
  void userEdited();
  void selectionMoved();

  /// Text as the control holds it.
  virtual std::string shownText() const = 0;
  /// `undoable`: as a step that the user can take back.
  virtual void showText(const std::string& text, bool undoable) = 0;
  virtual void insertText(const QString& text) = 0;
  /// Start and length in code points of shownText().
  virtual std::pair<int, int> shownSelection() const = 0;
  virtual void showSelection(int start, int length) = 0;
  virtual void showLocked() = 0;
  /// Of the widget: locked, or pale where it holds dashes alone.
  QPalette tone() const;
  virtual void showDoubt() {}

 private:
  bool inputMethod(QInputMethodEvent& event);
  void selectAfterFirstClick(const QEvent& event);
  void insertFiltered(const std::string& text);
  int room() const;

  forms::TextBox& box_;
  bool editing_ = false;      // the user is at it, undo is to be kept
  bool showing_ = false;      // the widget's signals are our own doing
  bool pale_ = false;         // as dashes are shown
  bool clickedInto_ = false;  // the button that brought the focus is still down
};

}  // namespace fidaleon::qt
