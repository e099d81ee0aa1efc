#include "forms/Control.h"

#include "forms/Form.h"

namespace fidaleon::forms {

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) {
  form_.adopt(*this);
}

Control::~Control() {
  form_.disown(*this);
}

void Control::setEnabled(bool on) {
  if (enabled_ == on) return;
  enabled_ = on;
  changed(Change::Enabled);
}

void Control::setVisible(bool on) {
  if (label_) label_->setVisible(on);
  if (visible_ == on) return;
  visible_ = on;
  changed(Change::Visible);
}

bool Control::usable() const {
  return enabled() && visible_ && (!frame_ || frame_->usable());
}

bool Control::reachable() const {
  if (!usable()) return false;
  if (!strip_) return true;
  return strip_->tab() == page_ && strip_->tabVisible(page_) && strip_->reachable();
}

void Control::setToolTip(std::string text) {
  toolTip_ = std::move(text);
  changed(Change::ToolTip);
}

void Control::take(const Offer&) {}

void Control::enteredByFocus() {
  if (onGotFocus) onGotFocus();
}

void Control::leftByFocus(Control* next) {
  if (onLostFocus) onLostFocus(next);
}

void Control::placeIn(Frame* frame, TabStrip* strip, int page) {
  frame_ = frame;
  strip_ = strip;
  page_ = page;
}

void Control::changed(Change what) {
  form_.controlChanged(*this, what);
}

}  // namespace fidaleon::forms
