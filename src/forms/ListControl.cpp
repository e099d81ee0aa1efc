#include "forms/Form.h"

namespace fidaleon::forms {

ListControl::ListControl(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)) {
  if (!caption.empty()) setLabel(form.makeLabel("lbl" + this->name(), caption));
}

int ListControl::addItem(std::string text, std::int64_t data) {
  items_.push_back({std::move(text), data, false});
  changed(Change::Items);
  return listCount() - 1;
}

void ListControl::removeItem(int index) {
  items_.erase(items_.begin() + index);
  if (listIndex_ == index) listIndex_ = -1;
  if (listIndex_ > index) --listIndex_;
  changed(Change::Items);
}

void ListControl::clear() {
  items_.clear();
  listIndex_ = -1;
  changed(Change::Items);
}

void ListControl::setListIndex(int index) {
  const bool choosesOne = index >= 0 && index < listCount();
  listIndex_ = choosesOne ? index : -1;
  changed(Change::Selection);
  if (choosesOne && onClick) onClick();
}

bool ListControl::selectData(std::int64_t data) {
  for (int i = 0; i < listCount(); ++i) {
    if (items_[i].data != data) continue;
    setListIndex(i);
    return true;
  }
  return false;
}

bool ListControl::selectText(std::string_view text) {
  for (int i = 0; i < listCount(); ++i) {
    if (items_[i].text != text) continue;
    setListIndex(i);
    return true;
  }
  return false;
}

std::string ListControl::text() const {
  return listIndex_ < 0 ? std::string() : list(listIndex_);
}

std::int64_t ListControl::data() const {
  return listIndex_ < 0 ? 0 : itemData(listIndex_);
}

bool ListControl::userSelect(int index) {
  if (locked() || !usable()) return false;
  setListIndex(index);
  return true;
}

bool ListControl::locked() const {
  return locked_ || form().isReadOnly();
}

void ListControl::setLocked(bool on) {
  if (locked_ == on) return;
  locked_ = on;
  changed(Change::Locked);
}

void ComboBox::take(const Offer& offer) {
  if (locked() || !usable()) return;
  if (onOffer) return onOffer(offer);
  selectData(offer.data);
}

bool ListBox::selected(int index) const {
  return multiSelect_ ? items_.at(index).selected : index == listIndex();
}

void ListBox::setSelected(int index, bool on) {
  if (!multiSelect_) return setListIndex(on ? index : -1);
  items_.at(index).selected = on;
  changed(Change::Selection);
}

int ListBox::selCount() const {
  int count = 0;
  for (int i = 0; i < listCount(); ++i) count += selected(i) ? 1 : 0;
  return count;
}

}  // namespace fidaleon::forms
