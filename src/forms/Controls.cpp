#include "forms/Controls.h"

#include "forms/Form.h"

namespace fidaleon::forms {

Label::Label(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

void Label::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed(Change::Caption);
}

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

void Frame::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed(Change::Caption);
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

bool CheckBox::enabled() const {
  return Control::enabled() && !form().isReadOnly();
}

void CheckBox::setValue(bool on) {
  if (value_ == on) return;
  value_ = on;
  changed(Change::Selection);
  if (onClick) onClick();
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, std::string group)
    : Control(form, std::move(name)), caption_(std::move(caption)), group_(std::move(group)) {}

bool OptionButton::enabled() const {
  return Control::enabled() && !form().isReadOnly();
}

void OptionButton::setValue(bool on) {
  if (on) {
    for (Control* other : form().controls()) {
      auto* option = dynamic_cast<OptionButton*>(other);
      if (option && option != this && option->group_ == group_) option->setValue(false);
    }
  }
  value_ = on;
  changed(Change::Selection);
  if (on && onClick) onClick();
}

Button::Button(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

bool Button::enabled() const {
  return Control::enabled() && (!form().isReadOnly() || form().servesReading(*this));
}

void Button::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed(Change::Caption);
}

void Button::click() {
  if (onClick) onClick();
}

TabStrip::TabStrip(Form& form, std::string name, std::vector<std::string> captions)
    : Control(form, std::move(name)) {
  for (std::string& caption : captions) tabs_.push_back({std::move(caption), true});
}

void TabStrip::setCaption(int tab, std::string caption) {
  tabs_.at(tab).caption = std::move(caption);
  changed(Change::Tab);
}

void TabStrip::setNote(int tab, std::string note) {
  if (tabs_.at(tab).note == note) return;
  tabs_.at(tab).note = std::move(note);
  changed(Change::Tab);
}

int TabStrip::next(int tab, bool backwards) const {
  do tab += backwards ? -1 : 1;
  while (tab >= 0 && tab < tabCount() && !tabs_.at(tab).visible);
  return tab < tabCount() ? tab : -1;
}

void TabStrip::setTabVisible(int tab, bool on) {
  tabs_.at(tab).visible = on;
  changed(Change::Tab);
}

void TabStrip::setTab(int tab) {
  if (tab == tab_ || tab < 0 || tab >= tabCount()) return;
  tab_ = tab;
  changed(Change::Tab);
}

bool TabStrip::userSelect(int tab) {
  if (tab == tab_) return true;
  if (tab < 0 || tab >= tabCount() || !tabs_[tab].visible || !usable()) return false;
  const int previous = tab_;
  if (!form().moveFocus(*this)) return false;
  if (onMouseDown && !onMouseDown(tab)) return false;
  if (form().isUnloaded()) return false;
  setTab(tab);
  if (onClick) onClick(previous);
  return tab_ == tab;
}

Progress::Progress(Form& form, std::string name) : Control(form, std::move(name)) {}

void Progress::Cargar(std::int64_t count, const std::string& message) {
  count_ = count;
  value_ = 0;
  message_ = message;
  changed(Change::Progress);
}

void Progress::setValue(std::int64_t value) {
  value_ = value;
  changed(Change::Progress);
}

}  // namespace fidaleon::forms
