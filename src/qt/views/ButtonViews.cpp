#include "qt/views/ButtonViews.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

#include "qt/Appearance.h"
#include "qt/Text.h"

namespace fidaleon::qt {

ButtonView::ButtonView(forms::Button& button, QWidget* parent)
    : ControlView(button), model_(button), button_(new QPushButton(parent)) {
  button_->setFocusPolicy(Qt::TabFocus);
  button_->setAutoDefault(true);
  button_->setDefault(button.isDefault());
  button_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(button_, &QPushButton::clicked, this, [this] { model_.form().userClick(model_); });
  watch();
}

/// An Enter held too long, which has come here through the fields, or pressed after the last of
/// them had ended by itself.
bool ButtonView::keyPressed(QKeyEvent& event) {
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (enter && (event.isAutoRepeat() || model_.form().endsFieldBefore())) return true;
  return ControlView::keyPressed(event);
}

QWidget* ButtonView::widget() const {
  return button_;
}

void ButtonView::showCaption() {
  button_->setText(markedCaption(model_.caption(), model_.form().mnemonic(model_)));
  button_->setMinimumWidth(0);
  button_->setMinimumWidth(std::max(button_->sizeHint().width(), charsWidth(*button_, 9)));
}

CheckView::CheckView(forms::CheckBox& check, QWidget* parent)
    : ControlView(check), model_(check), check_(new QCheckBox(parent)) {
  check_->setFocusPolicy(Qt::TabFocus);
  connect(check_, &QCheckBox::clicked, this, [this](bool on) {
    if (model_.form().moveFocus(model_) && model_.usable()) model_.setValue(on);
    check_->setChecked(model_.value());
  });
  watch();
}

QWidget* CheckView::widget() const {
  return check_;
}

void CheckView::refresh(forms::Change what) {
  ControlView::refresh(what);
  if (what == forms::Change::Selection) check_->setChecked(model_.value());
}

void CheckView::showCaption() {
  check_->setText(markedCaption(model_.caption(), model_.form().mnemonic(model_)));
}

OptionView::OptionView(forms::OptionButton& option, QWidget* parent)
    : ControlView(option), model_(option), option_(new QRadioButton(parent)) {
  option_->setFocusPolicy(Qt::TabFocus);
  option_->setAutoExclusive(false);  // the form knows which ones exclude each other
  connect(option_, &QRadioButton::clicked, this, [this] { choose(); });
  watch();
}

QWidget* OptionView::widget() const {
  return option_;
}

void OptionView::refresh(forms::Change what) {
  ControlView::refresh(what);
  if (what == forms::Change::Selection) option_->setChecked(model_.value());
}

void OptionView::showCaption() {
  option_->setText(markedCaption(model_.caption(), model_.form().mnemonic(model_)));
}

void OptionView::choose() {
  if (model_.form().moveFocus(model_) && model_.usable() && !model_.value()) model_.setValue(true);
  option_->setChecked(model_.value());
}

bool OptionView::keyPressed(QKeyEvent& event) {
  if (ControlView::keyPressed(event)) return true;
  const int key = event.key();
  if (key == Qt::Key_Up || key == Qt::Key_Left) return chooseNeighbour(true);
  if (key == Qt::Key_Down || key == Qt::Key_Right) return chooseNeighbour(false);
  return false;
}

bool OptionView::chooseNeighbour(bool backwards) {
  std::vector<forms::OptionButton*> group;
  for (forms::Control* control : model_.form().tabOrder()) {
    auto* option = dynamic_cast<forms::OptionButton*>(control);
    if (option && option->group() == model_.group() && option->reachable()) group.push_back(option);
  }
  const auto at = std::find(group.begin(), group.end(), &model_);
  if (at == group.end()) return true;
  const std::size_t step = backwards ? group.size() - 1 : 1;
  forms::OptionButton& next = *group[(at - group.begin() + step) % group.size()];
  if (next.form().moveFocus(next) && !next.value()) next.setValue(true);
  return true;
}

}  // namespace fidaleon::qt
