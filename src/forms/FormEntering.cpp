// Going through the fields of a form with Enter.

#include <algorithm>
#include <utility>

#include "forms/Form.h"
#include "text/Utf8.h"

namespace fidaleon::forms {

namespace {

std::string textOf(const Control& control) {
  const auto* box = dynamic_cast<const TextBox*>(&control);
  const auto* list = dynamic_cast<const ListControl*>(&control);
  return box ? box->text() : list ? list->text() : std::string();
}

bool isBlank(const Control& control) {
  const auto* list = dynamic_cast<const ListControl*>(&control);
  return list ? list->listIndex() < 0 : text::trim(textOf(control)).empty();
}

bool isLocked(const Control& control) {
  const auto* box = dynamic_cast<const TextBox*>(&control);
  const auto* list = dynamic_cast<const ListControl*>(&control);
  return (box && box->locked()) || (list && list->locked());
}

/// Two of which one is chosen: they are one field, and arrows go from the one to the other.
bool areOne(const Control* a, const Control& b) {
  const auto* first = dynamic_cast<const OptionButton*>(a);
  const auto* second = dynamic_cast<const OptionButton*>(&b);
  return first && second && first->group() == second->group();
}

/// On a tab that can be brought to the front, as are those around it.
bool hasShownPage(const Control& control) {
  for (const Control* at = &control; at->strip(); at = at->strip())
    if (!at->strip()->tabVisible(at->page()) || !at->strip()->usable()) return false;
  return true;
}

}  // namespace

void Form::markSaved() {
  saved_ = Contents::of(*this);
  visited_.clear();
  if (active_) visited_.insert(active_);
}

bool Form::settled(const Control& field) const {
  if (visited(field) || isBlank(field)) return false;
  const auto was = std::find_if(saved_.fields.begin(), saved_.fields.end(),
                                [&](const Field& f) { return f.control == field.name(); });
  return was != saved_.fields.end() && was->text != textOf(field);
}

bool Form::isStop(const Control& control) const {
  const bool field = control.canTakeFocus() && !dynamic_cast<const Button*>(&control) &&
                     !dynamic_cast<const TabStrip*>(&control) &&
                     !dynamic_cast<const Grid*>(&control);
  return field && !control.passedByEnter() && control.usable() && hasShownPage(control) &&
         !isLocked(control) && !settled(control) && !areOne(active_, control);
}

Control* Form::nextStop() const {
  const std::vector<Control*> order = tabOrder();
  auto at = std::find(order.begin(), order.end(), active_);
  if (at != order.end()) ++at;
  if (!active_) at = order.begin();
  const auto next = std::find_if(at, order.end(), [this](const Control* c) { return isStop(*c); });
  return next == order.end() ? nullptr : *next;
}

/// As the user would: tabs ask and tell their handlers.
bool Form::bringForward(Control& control) {
  if (TabStrip* strip = control.strip()) {
    if (!bringForward(*strip) || !strip->userSelect(control.page())) return false;
  }
  return !unloaded_;
}

void Form::goOn() {
  while (Control* next = nextStop()) {
    const bool news = !visited(*next);
    if (!bringForward(*next) || !moveFocus(*next)) return;
    // Leaving the field before may have brought what belongs here.
    if (!news || !visited_.erase(next)) return;
    const bool filled = settled(*next);
    if (!filled) visited_.insert(next);
    if (!filled) return;
  }
  if (Button* button = defaultButton()) moveFocus(*button);
}

void Form::typedInto(const TextBox& box) {
  if (!entersFields() || &box != active_ || !box.complete()) return;
  goOn();
  if (active_ && active_ != &box) cameByItself_ = {active_, textOf(*active_)};
}

bool Form::endsFieldBefore() {
  const auto came = std::exchange(cameByItself_, {});
  return came.at && came.at == active_ && came.text == textOf(*active_);
}

Button* Form::defaultButton() const {
  for (Control* control : controls_) {
    auto* button = dynamic_cast<Button*>(control);
    if (button && button->isDefault() && button->reachable()) return button;
  }
  return nullptr;
}

bool Form::pressEnter() {
  if (endsFieldBefore()) return true;
  if (auto* own = dynamic_cast<Button*>(active_)) return userClick(*own);
  if (!entersFields()) return pressDefault();
  goOn();
  return true;
}

bool Form::pressDefault() {
  Button* button = defaultButton();
  return button && userClick(*button);
}

}  // namespace fidaleon::forms
