#include <stdexcept>

#include "forms/ScriptedUser.h"
#include "text/Utf8.h"

namespace fidaleon::forms {

FormDriver::FormDriver(Form& form, std::vector<std::string>& problems)
    : form_(form), problems_(problems) {}

void FormDriver::problem(const std::string& text) const {
  problems_.push_back(form_.name() + ": " + text);
}

Control& FormDriver::require(const std::string& name) const {
  if (Control* control = form_.find(name)) return *control;
  problem("no control «" + name + "»");
  throw std::logic_error("no control " + name + " on " + form_.name());
}

bool FormDriver::reach(Control& control) {
  if (form_.isUnloaded()) {
    problem("already closed when reaching for «" + control.name() + "»");
    return false;
  }
  if (!control.reachable()) {
    problem("«" + control.name() + "» cannot be reached");
    return false;
  }
  return form_.moveFocus(control);
}

void FormDriver::type(const std::string& name, const std::string& text) {
  auto& box = get<TextBox>(name);
  if (!reach(box)) return;
  if (box.locked()) return problem("«" + name + "» is locked");
  box.selectAll();
  KeyPress erase;
  erase.key = Key::Delete;
  if (text.empty()) return box.press(erase);
  for (char32_t c : text::toUtf32(text)) {
    KeyPress key;
    key.key = c == U'\n' ? Key::Enter : c == U' ' ? Key::Space : Key::Character;
    key.character = c == U'\n' ? 0 : c;
    box.press(key);
  }
}

void FormDriver::paste(const std::string& name, const std::string& text) {
  auto& box = get<TextBox>(name);
  if (!reach(box)) return;
  if (box.locked()) return problem("«" + name + "» is locked");
  box.enterText(text);
}

void FormDriver::press(const std::string& name, KeyPress key) {
  Control& control = require(name);
  if (!reach(control)) return;
  if (auto* box = dynamic_cast<TextBox*>(&control)) return box->press(key);
  if (control.onKeyPress) control.onKeyPress(key);
}

void FormDriver::choose(const std::string& name, const std::string& text) {
  auto& list = get<ListControl>(name);
  if (!reach(list)) return;
  for (int i = 0; i < list.listCount(); ++i)
    if (list.list(i) == text) return chooseLine(list, i);
  problem("«" + name + "» has no line «" + text + "»");
}

void FormDriver::chooseData(const std::string& name, std::int64_t data) {
  auto& list = get<ListControl>(name);
  if (!reach(list)) return;
  for (int i = 0; i < list.listCount(); ++i)
    if (list.itemData(i) == data) return chooseLine(list, i);
  problem("«" + name + "» has no line with key " + std::to_string(data));
}

// In a list of many selections the line named is afterwards the only one marked, so that nobody has
// to know what was before. (In a window a click marks or unmarks its line and leaves the others.)
void FormDriver::chooseLine(ListControl& list, int index) {
  if (!list.userSelect(index)) return problem("«" + list.name() + "» is locked");
  auto* many = dynamic_cast<ListBox*>(&list);
  if (!many || !many->multiSelect()) return;
  for (int i = 0; i < many->listCount(); ++i) many->setSelected(i, i == index);
}

void FormDriver::click(const std::string& name) {
  Control& control = require(name);
  if (auto* button = dynamic_cast<Button*>(&control)) {
    if (!form_.isUnloaded() && !control.reachable())
      return problem("«" + name + "» cannot be clicked");
    form_.userClick(*button);
    return;
  }
  if (!reach(control)) return;
  if (auto* check = dynamic_cast<CheckBox*>(&control)) check->setValue(!check->value());
  if (auto* option = dynamic_cast<OptionButton*>(&control)) option->setValue(true);
}

void FormDriver::tab(const std::string& strip, int index) {
  get<TabStrip>(strip).userSelect(index);
}

void FormDriver::row(const std::string& grid, int row) {
  auto& target = get<Grid>(grid);
  if (reach(target)) target.setRow(row);
}

void FormDriver::doubleClick(const std::string& grid, int row) {
  auto& target = get<Grid>(grid);
  if (reach(target)) target.userDblClick(row);
}

void FormDriver::focus(const std::string& name) {
  reach(require(name));
}

void FormDriver::enter() {
  form_.pressEnter();
}

void FormDriver::ctrlEnter() {
  form_.pressDefault();
}

void FormDriver::former(bool page) {
  if (form_.activeControl()) form_.takeFormer(*form_.activeControl(), page);
}

std::vector<std::string> FormDriver::offered(const std::string& name,
                                             const std::string& typed) const {
  while (form_.workBeside()) {
  }
  const Control& control = require(name);
  std::vector<std::string> texts;
  if (control.offers)
    for (const Offer& offer : control.offers(typed)) texts.push_back(offer.text);
  return texts;
}

void FormDriver::takeOffer(const std::string& name, const std::string& typed) {
  Control& control = require(name);
  if (!reach(control)) return;
  const std::vector<Offer> all = control.offers ? control.offers(typed) : std::vector<Offer>();
  if (all.empty()) return problem("«" + name + "» offers nothing for «" + typed + "»");
  control.take(all.front());
}

void FormDriver::escape() {
  form_.requestClose();
}

void FormDriver::close() {
  form_.requestClose();
}

std::string FormDriver::text(const std::string& name) const {
  Control& control = require(name);
  if (auto* box = dynamic_cast<TextBox*>(&control)) return box->text();
  if (auto* list = dynamic_cast<ListControl*>(&control)) return list->text();
  if (auto* label = dynamic_cast<Label*>(&control)) return label->caption();
  if (auto* button = dynamic_cast<Button*>(&control)) return button->caption();
  if (auto* frame = dynamic_cast<Frame*>(&control)) return frame->caption();
  return {};
}

bool FormDriver::enabled(const std::string& name) const {
  return require(name).usable();
}

bool FormDriver::visible(const std::string& name) const {
  const Control& control = require(name);
  return control.visible() && (!control.frame() || control.frame()->visible());
}

bool FormDriver::locked(const std::string& name) const {
  Control& control = require(name);
  if (auto* box = dynamic_cast<TextBox*>(&control)) return box->locked();
  if (auto* list = dynamic_cast<ListControl*>(&control)) return list->locked();
  return false;
}

std::string FormDriver::focused() const {
  return form_.activeControl() ? form_.activeControl()->name() : std::string();
}

}  // namespace fidaleon::forms
