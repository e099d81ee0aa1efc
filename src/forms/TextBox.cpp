#include <algorithm>

#include "forms/Form.h"
#include "text/Dates.h"
#include "text/Names.h"
#include "text/Utf8.h"

namespace fidaleon::forms {

namespace {

void captionInFront(Control& control, const std::string& caption) {
  if (!caption.empty()) control.setLabel(control.form().makeLabel("lbl" + control.name(), caption));
}

std::string onlyDigits(const std::string& text) {
  std::string digits;
  std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
               [](char c) { return c >= '0' && c <= '9'; });
  return digits;
}

std::string oneLine(const std::string& text) {
  std::string line = text::replaceAll(text, "\r\n", " ");
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
  return line;
}

std::string withCrLf(const std::string& text) {
  return text::replaceAll(text::replaceAll(text, "\r\n", "\n"), "\n", "\r\n");
}

}  // namespace

TextBox::TextBox(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)) {
  captionInFront(*this, caption);
}

void TextBox::setText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  setDoubt({});
  const int end = static_cast<int>(text::length(text_));
  setSelection(std::min(selStart_, end), 0);
  changed(Change::Text);
  if (onChange) onChange();
}

void TextBox::take(const Offer& offer) {
  enterText(offer.text);
  setSelection(static_cast<int>(text::length(text_)), 0);
}

void TextBox::setDoubt(std::string why) {
  if (doubt_ == why) return;
  doubt_ = std::move(why);
  changed(Change::Doubt);
}

bool TextBox::breaksLines() const {
  return multiline() && (!text_.empty() || !form().entersFields());
}

std::string TextBox::accepted(const std::string& text) const {
  std::string good = text::sanitized(text);
  good = multiline() ? withCrLf(good) : oneLine(good);
  if (digitsOnly_) good = onlyDigits(good);
  return maxLength_ > 0 ? text::left(good, maxLength_) : good;
}

void TextBox::enterText(const std::string& text) {
  if (locked() || !usable()) return;
  const std::string next = accepted(text);
  if (refuses(next)) return form().ui().beep();
  setText(next);
}

bool TextBox::refuses(const std::string& next) const {
  if (!fits || next == text_) return false;
  const bool shorter = text::length(next) < text::length(text_);
  if (maxLength_ > 0 && text::length(next) > static_cast<std::size_t>(maxLength_)) return !shorter;
  return !fits(next) && (fits(text_) || !shorter);
}

/// The text as this key would leave it.
std::string TextBox::withTyped(const KeyPress& key) const {
  int from = selStart_;
  int to = selStart_ + selLength_;
  std::string typed;
  if (key.changed())
    typed = *key.replacement;
  else if (key.key == Key::Character || key.key == Key::Space)
    typed = text::toUtf8(std::u32string(1, key.character));
  else if (from == to && key.key == Key::Backspace)
    from = std::max(0, from - 1);
  else if (from == to && key.key == Key::Delete)
    ++to;
  else if (key.key != Key::Backspace && key.key != Key::Delete)
    return text_;
  return text::left(text_, from) + typed + text::mid(text_, to);
}

bool TextBox::locked() const {
  return locked_ || form().isReadOnly();
}

bool TextBox::enabled() const {
  return Control::enabled() || form().isReadOnly();
}

void TextBox::setLocked(bool on) {
  if (locked_ == on) return;
  locked_ = on;
  changed(Change::Locked);
}

void TextBox::setMaxLength(int n) {
  maxLength_ = n;
  changed(Change::Locked);
}

void TextBox::setSelection(int start, int length) {
  const int end = static_cast<int>(text::length(text_));
  selStart_ = std::clamp(start, 0, end);
  selLength_ = std::clamp(length, 0, end - selStart_);
  changed(Change::Selection);
}

void TextBox::selectAll() {
  setSelection(0, static_cast<int>(text::length(text_)));
}

void TextBox::enteredByFocus() {
  if (!multiline()) selectAll();
  Control::enteredByFocus();
}

void TextBox::leftByFocus(Control* next) {
  if (!locked() && text_.find('"') != std::string::npos && quoteRule_ != QuoteRule::Keep)
    setText(quoteRule_ == QuoteRule::Replace
                ? text::withoutQuotes(text_, static_cast<std::size_t>(maxLength_))
                : text::replaceAll(text_, "\"", ""));
  Control::leftByFocus(next);
}

void TextBox::filterKey(KeyPress& key) {
  const bool edits = key.character >= U' ' || key.key == Key::Backspace || key.key == Key::Delete;
  if (holdsDashes() && edits && !locked() && !key.ctrl && !key.alt) selectAll();
  if (onKeyPress) onKeyPress(key);
  if (key.changed() || locked() || key.ctrl || key.alt) return;
  if (key.character == U'"' && quoteRule_ != QuoteRule::Keep) key.replaceWith("''");
  const bool digit = key.character >= U'0' && key.character <= U'9';
  if (digitsOnly_ && key.character >= U' ' && !digit) {
    key.swallow();
    form().ui().beep();
  }
  if (!fits || (key.changed() && key.replacement->empty()) || !refuses(withTyped(key))) return;
  key.swallow();
  form().ui().beep();
}

void TextBox::insertAtCaret(const std::string& text) {
  if (locked()) return;
  const std::string before = text::left(text_, selStart_);
  const std::string after = text::mid(text_, selStart_ + selLength_);
  std::string piece = text;
  if (maxLength_ > 0) {
    const auto taken = text::length(before) + text::length(after);
    piece =
        text::left(piece, taken >= static_cast<std::size_t>(maxLength_) ? 0 : maxLength_ - taken);
  }
  const int caret = selStart_ + static_cast<int>(text::length(piece));
  setText(before + piece + after);
  setSelection(caret, 0);
}

void TextBox::press(KeyPress key) {
  if (!usable()) return;
  filterKey(key);
  if (key.changed()) {
    if (!key.replacement->empty()) insertAtCaret(*key.replacement);
    return;
  }
  if (key.key == Key::Character || key.key == Key::Space)
    return insertAtCaret(text::toUtf8(std::u32string(1, key.character)));
  if (key.key == Key::Enter && breaksLines()) return insertAtCaret("\r\n");
  if (key.key != Key::Backspace && key.key != Key::Delete) return;
  if (selLength_ == 0 && key.key == Key::Backspace && selStart_ > 0) setSelection(selStart_ - 1, 1);
  if (selLength_ == 0 && key.key == Key::Delete) setSelection(selStart_, 1);
  insertAtCaret({});
}

DateField::DateField(Form& form, std::string name, std::string caption)
    : TextBox(form, std::move(name), std::move(caption)) {
  setMaxLength(24);  // "12 de septiembre de 1924"
  setWidthChars(11);
}

std::optional<text::Date> DateField::read() const {
  const std::string typed = text::trim(text());
  const auto whole = text::parseShort(typed);
  return whole || typed.empty() ? whole : text::parseTyped(typed, form().dateSense(*this));
}

std::string DateField::stored() const {
  const auto date = read();
  return date ? text::toStored(*date) : std::string();
}

void DateField::setStored(std::string_view yyyymmdd) {
  const auto date = text::parseStored(yyyymmdd);
  setText(date ? text::toShort(*date) : std::string());
}

bool DateField::valid() const {
  return text::trim(text()).empty() || read().has_value();
}

bool DateField::complete() const {
  const std::string typed = text();
  const bool eightDigits = typed.size() == 8 && onlyDigits(typed) == typed;
  const auto year = typed.find_last_of("/-.");
  const bool wholeYear = year != std::string::npos && typed.size() == year + 5 &&
                         typed.find_first_of("/-.") != year && onlyDigits(typed).size() >= 6;
  return (eightDigits || wholeYear) && read().has_value();
}

void DateField::leftByFocus(Control* next) {
  const std::string typed = text::trim(text());
  if (const auto date = read(); date && !locked()) setText(text::toShort(*date));
  TextBox::leftByFocus(next);
  const auto* button = dynamic_cast<const Button*>(next);
  if (valid() || (button && button->isCancel())) return;
  warn(form().ui(), "«" + typed + "» no es una fecha. Escríbala como día/mes/año: 03/05/1998.");
  selectAll();
  form().setFocus(*this);
}

TimeField::TimeField(Form& form, std::string name, std::string caption)
    : TextBox(form, std::move(name), std::move(caption)) {
  setMaxLength(5);
  setWidthChars(6);
}

std::string TimeField::stored() const {
  return text::parseTime(text::trim(text())).value_or("");
}

void TimeField::setStored(std::string_view time) {
  setText(text::parseTime(time).value_or(""));
}

bool TimeField::valid() const {
  return text::trim(text()).empty() || text::parseTime(text::trim(text())).has_value();
}

bool TimeField::complete() const {
  const std::string typed = text();
  const auto colon = typed.find(':');
  const bool whole = colon == std::string::npos ? typed.size() == 4 : typed.size() == colon + 3;
  return whole && text::parseTime(typed).has_value();
}

void TimeField::leftByFocus(Control* next) {
  if (const auto time = text::parseTime(text::trim(text())); time && !locked()) setText(*time);
  TextBox::leftByFocus(next);
  const auto* button = dynamic_cast<const Button*>(next);
  if (valid() || (button && button->isCancel())) return;
  warn(form().ui(), "«" + text() + "» no es una hora. Escríbala como horas:minutos: 09:30.");
  selectAll();
  form().setFocus(*this);
}

}  // namespace fidaleon::forms
