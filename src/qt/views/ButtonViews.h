#pragma once

#include "qt/views/ControlView.h"

class QAbstractButton;
class QCheckBox;
class QPushButton;
class QRadioButton;

namespace fidaleon::qt {

/// Buttons take the focus by click only when the form lets the current field be left; the form
/// decides that on the click, so the widgets themselves take it by Tab alone.
class ButtonView : public ControlView {
 public:
  ButtonView(forms::Button& button, QWidget* parent);
  QWidget* widget() const override;
  void showCaption() override;

 protected:
  bool keyPressed(QKeyEvent& event) override;

 private:
  forms::Button& model_;
  QPushButton* button_;
};

class CheckView : public ControlView {
 public:
  CheckView(forms::CheckBox& check, QWidget* parent);
  QWidget* widget() const override;
  void refresh(forms::Change what) override;
  void showCaption() override;

 private:
  forms::CheckBox& model_;
  QCheckBox* check_;
};

class OptionView : public ControlView {
 public:
  OptionView(forms::OptionButton& option, QWidget* parent);
  QWidget* widget() const override;
  void refresh(forms::Change what) override;
  void showCaption() override;

 protected:
  bool keyPressed(QKeyEvent& event) override;

 private:
  void choose();
  bool chooseNeighbour(bool backwards);
  forms::OptionButton& model_;
  QRadioButton* option_;
};

}  // namespace fidaleon::qt
