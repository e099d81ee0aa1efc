#pragma once

#include <QDialog>
#include <QTimer>
#include <map>
#include <memory>

#include "forms/Form.h"
#include "qt/views/ControlView.h"

namespace fidaleon::qt {

/// Shows a form in a window, from its controls and its layout. The form must outlive it and has
/// to be loaded; it owns the focus, the window asks it and follows.
class FormDialog : public QDialog, private forms::FormObserver {
 public:
  enum class Use {
    Window,   // worked with
    Picture,  // only looked at: moves no focus and tells the form nothing
  };
  /// `room` is the size of the screen it has to fit; empty means the screen it will appear on.
  explicit FormDialog(forms::Form& form, QWidget* parent = nullptr, Use use = Use::Window,
                      QSize room = {});
  ~FormDialog() override;

  /// Null for a control that the layout does not name.
  QWidget* widgetOf(const forms::Control& control) const;
  /// What of the control takes the keyboard.
  QWidget* fieldOf(const forms::Control& control) const;
  /// Lists and grids take changes when the program is idle; this brings them in now.
  void flush();

  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void controlChanged(forms::Control& control, forms::Change what) override;
  void focusChanged(forms::Control* active) override;
  void captionChanged() override;
  void unloaded() override;

  void buildViews();
  void connectLabels();
  void chainTabOrder();
  void applyPalette();
  void fitScreen();
  ControlView& makeViewOf(forms::Control& control, QWidget* parent);
  ControlView* viewOf(const forms::Control* control) const;
  ControlView* viewAt(QWidget* widget) const;
  void userWent(QWidget* now);
  void pushFocus();
  void switchTab(bool backwards);

  forms::Form& form_;
  Use use_;
  QSize room_;
  std::map<const forms::Control*, std::unique_ptr<ControlView>> views_;
  std::map<const QWidget*, ControlView*> byWidget_;
  int settling_ = 0;  // the focus moves by our own doing
  Qt::FocusReason reason_ = Qt::OtherFocusReason;
  QTimer beside_;  // when the form may do what it has to do beside the keys
};

}  // namespace fidaleon::qt
