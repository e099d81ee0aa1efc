#include "forms/Form.h"

#include <algorithm>
#include <utility>

#include "forms/ReadOnlyBar.h"
#include "text/Utf8.h"

namespace fidaleon::forms {

namespace {

/// While it lives, focus moves asked for by handlers are queued. Ends with an exception too.
class Moving {
 public:
  explicit Moving(bool& flag) : flag_(flag) { flag_ = true; }
  ~Moving() { flag_ = false; }
  Moving(const Moving&) = delete;
  Moving& operator=(const Moving&) = delete;

 private:
  bool& flag_;
};

}  // namespace

Form::Form(UserInterface& ui, std::string name) : ui_(ui), name_(std::move(name)) {}

Form::~Form() {
  active_ = nullptr;
  observer_ = nullptr;
  readOnly_.reset();
  ownLabels_.clear();
}

void Form::setCaption(const std::string& caption) {
  caption_ = caption;
  if (observer_) observer_->captionChanged();
}

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  Form_Load();
  markSaved();
}

void Form::Show() {
  Load();
  if (unloaded_) return;
  markSaved();
  ui_.showModal(*this);
}

void Form::Unload() {
  if (unloaded_) return;
  unloaded_ = true;
  Form_Unload();
  if (observer_) observer_->unloaded();
}

void Form::Abandon() {
  abandoned_ = !unloaded_;
  Unload();
}

bool Form::hasUnsaved() const {
  return loaded_ && !unloaded_ && !disposable_ && !(Contents::of(*this) == saved_);
}

bool Form::mayBeThrownAway() {
  if (asksOnCancel() || !hasUnsaved()) return true;
  const std::string typed = namesOf(changes(saved_, Contents::of(*this)));
  return ask(ui_,
             "Lo que ha escrito en esta ventana no se ha guardado y se perderá.\n"
             "¿Desea cerrarla de todos modos?",
             text::replaceAll(caption_, "&", ""), Stake::Loss,
             typed.empty() ? typed : "Ha cambiado: " + typed + ".");
}

void Form::requestClose() {
  if (unloaded_ || !mayBeThrownAway()) return;
  for (Control* control : controls_) {
    auto* button = dynamic_cast<Button*>(control);
    if (!button || !button->isCancel() || !button->usable()) continue;
    userClick(*button);
    return;
  }
  Unload();
}

bool Form::moveFocus(Control& next) {
  if (unloaded_ || !next.reachable() || !next.canTakeFocus()) return false;
  if (moving_) {
    pending_ = &next;
    return false;
  }
  if (&next == active_) return true;
  if (active_) {
    const Moving moving(moving_);
    active_->leftByFocus(&next);
  }
  Control* wished = std::exchange(pending_, nullptr);
  if (unloaded_) return false;
  if (wished && wished->reachable() && wished != active_) settleFocus(wished);
  if (!wished && next.reachable()) settleFocus(&next);
  if (observer_) observer_->focusChanged(active_);
  return active_ == &next;
}

void Form::setFocus(Control& control) {
  if (moving_) {
    pending_ = &control;
    return;
  }
  if (unloaded_ || !control.reachable() || !control.canTakeFocus()) return;
  if (&control != active_)
    moveFocus(control);
  else if (observer_)
    observer_->focusChanged(active_);
}

void Form::settleFocus(Control* target) {
  // A handler of arrival may send the focus on; a bound keeps two that disagree from looping.
  for (int hops = 0; target && hops < 8; ++hops) {
    active_ = target;
    cameByItself_ = {};
    visited_.insert(target);
    {
      const Moving moving(moving_);
      active_->enteredByFocus();
    }
    target = std::exchange(pending_, nullptr);
    if (unloaded_ || target == active_ || (target && !target->reachable())) return;
  }
}

std::vector<Control*> Form::tabOrder() const {
  std::vector<Control*> order;
  const std::function<void(const LayoutNode&)> walk = [&](const LayoutNode& node) {
    if (node.control && node.control->canTakeFocus()) order.push_back(node.control);
    for (Control* control : node.beside)
      if (control->canTakeFocus()) order.push_back(control);
    for (const LayoutNode& child : node.children) walk(child);
  };
  walk(layout_);
  // What is read comes before the way to get further.
  if (readOnly_) std::rotate(order.begin(), order.begin() + 1, order.end());
  return order;
}

void Form::focusFirst() {
  for (Control* control : tabOrder()) {
    if (!control->reachable() || dynamic_cast<TabStrip*>(control)) continue;
    moveFocus(*control);
    return;
  }
}

bool Form::focusFirstOn(const TabStrip& strip) {
  for (Control* control : tabOrder()) {
    if (control->strip() != &strip || control->page() != strip.tab() || !control->reachable())
      continue;
    const auto* inner = dynamic_cast<const TabStrip*>(control);
    return (inner && focusFirstOn(*inner)) || moveFocus(*control);
  }
  return false;
}

void Form::begin() {
  focusFirst();
  if (entersFields() && beginsSettled()) goOn();
}

void Form::focusNext(bool backwards) {
  if (!backwards && endsFieldBefore()) return;
  std::vector<Control*> order = tabOrder();
  if (backwards) std::reverse(order.begin(), order.end());
  auto at = std::find(order.begin(), order.end(), active_);
  if (at != order.end()) std::rotate(order.begin(), std::next(at), order.end());
  for (Control* control : order) {
    if (control == active_ || !control->reachable()) continue;
    moveFocus(*control);
    return;
  }
}

bool Form::userClick(Button& button) {
  if (unloaded_ || !button.reachable()) return false;
  if (!moveFocus(button) || !button.reachable()) return false;
  button.click();
  return true;
}

Control* Form::find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* c) { return c->name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::adopt(Control& control) {
  controls_.push_back(&control);
  mnemonicsKnown_ = false;
}

void Form::disown(Control& control) {
  std::erase(controls_, &control);
  visited_.erase(&control);
  if (active_ == &control) active_ = nullptr;
  if (cameByItself_.at == &control) cameByItself_ = {};
  if (pending_ == &control) pending_ = nullptr;
}

void Form::controlChanged(Control& control, Change what) {
  if (what == Change::Caption) mnemonicsKnown_ = false;
  if (observer_) observer_->controlChanged(control, what);
  const bool hides = what == Change::Enabled || what == Change::Visible || what == Change::Tab;
  if (hides && active_ && !active_->reachable()) rescueFocus(*active_);
}

void Form::rescueFocus(Control& lost) {
  // The user did not leave: no handler of leaving runs, the focus goes to the next in order.
  std::vector<Control*> order = tabOrder();
  auto at = std::find(order.begin(), order.end(), &lost);
  if (at != order.end()) std::rotate(order.begin(), std::next(at), order.end());
  const auto next =
      std::find_if(order.begin(), order.end(), [](const Control* c) { return c->reachable(); });
  active_ = next == order.end() ? nullptr : *next;
  if (observer_) observer_->focusChanged(active_);
}

Label& Form::makeLabel(const std::string& name, const std::string& caption) {
  ownLabels_.push_back(std::make_unique<Label>(*this, name, caption));
  return *ownLabels_.back();
}

void Form::setLayout(LayoutNode layout) {
  layout_ = std::move(layout);
  mnemonicsKnown_ = false;
  place(layout_, nullptr, nullptr, -1);
}

void Form::place(LayoutNode& node, Frame* frame, TabStrip* strip, int page) {
  if (node.control) node.control->placeIn(frame, strip, page);
  if (node.control && node.control->label()) node.control->label()->placeIn(frame, strip, page);
  for (Control* control : node.beside) {
    control->placeIn(frame, strip, page);
    if (control->label()) control->label()->placeIn(frame, strip, page);
  }
  if (node.kind == LayoutNode::Kind::Group) frame = static_cast<Frame*>(node.control);
  if (node.kind == LayoutNode::Kind::Tabs) {
    auto* inner = static_cast<TabStrip*>(node.control);
    for (std::size_t i = 0; i < node.children.size(); ++i)
      place(node.children[i], frame, inner, static_cast<int>(i));
    return;
  }
  for (LayoutNode& child : node.children) place(child, frame, strip, page);
}

}  // namespace fidaleon::forms
