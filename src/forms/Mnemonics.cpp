#include <algorithm>
#include <set>

#include "forms/Form.h"
#include "text/Utf8.h"

namespace fidaleon::forms {

namespace {

/// The text that carries a control's mnemonic; empty when it shows none.
std::string mnemonicText(const Control& control) {
  if (auto* button = dynamic_cast<const Button*>(&control)) return button->caption();
  if (auto* check = dynamic_cast<const CheckBox*>(&control)) return check->caption();
  if (auto* option = dynamic_cast<const OptionButton*>(&control)) return option->caption();
  if (control.canTakeFocus() && control.label()) return control.label()->caption();
  return {};
}

bool isLetterOrDigit(char32_t c) {
  return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z');
}

/// Letters of a caption in the order in which they would be taken: initials of words first.
std::u32string candidates(const std::string& caption) {
  const std::u32string letters = text::toUtf32(text::upper(text::searchKey(caption)));
  std::u32string initials, rest;
  bool start = true;
  for (char32_t c : letters) {
    if (isLetterOrDigit(c)) (start ? initials : rest).push_back(c);
    start = !isLetterOrDigit(c);
  }
  return initials + rest;
}

char32_t ownMnemonic(const std::string& caption) {
  const auto at = caption.find('&');
  if (at == std::string::npos || at + 1 >= caption.size()) return 0;
  const std::u32string letter = text::toUtf32(text::upper(text::searchKey(caption.substr(at + 1))));
  return letter.empty() ? 0 : letter.front();
}

}  // namespace

/// Letters are unique among the controls that can be seen at once: those outside all tabs are on
/// every tab, those on one tab only there.
void Form::assignMnemonics() const {
  mnemonics_.clear();
  using Place = std::pair<const TabStrip*, int>;
  std::vector<std::pair<Place, char32_t>> taken;
  const auto clashes = [&](const Control& c, char32_t letter) {
    return std::any_of(taken.begin(), taken.end(), [&](const auto& entry) {
      const bool apart =
          c.strip() && entry.first.first == c.strip() && entry.first.second != c.page();
      return !apart && entry.second == letter;
    });
  };
  const auto take = [&](const Control& c, char32_t letter, int tab = -1) {
    taken.push_back({{c.strip(), c.page()}, letter});
    mnemonics_.push_back({&c, tab, letter});
  };
  const std::vector<Control*> order = tabOrder();
  const auto assign = [&](const Control& control, const std::string& caption, int tab = -1) {
    for (char32_t letter : candidates(caption)) {
      if (clashes(control, letter)) continue;
      take(control, letter, tab);
      return;
    }
  };
  // Letters that tabs bear themselves are theirs alone.
  for (const Control* control : order)
    if (const auto* tabs = dynamic_cast<const TabStrip*>(control))
      for (int tab = 0; tab < tabs->tabCount(); ++tab)
        if (const char32_t own = ownMnemonic(tabs->caption(tab))) take(*tabs, own, tab);
  for (const Control* control : order)
    if (const char32_t own = ownMnemonic(mnemonicText(*control))) take(*control, own);
  const auto open = [&](const Control& control, int tab = -1) {
    return std::none_of(mnemonics_.begin(), mnemonics_.end(),
                        [&](const Mnemonic& m) { return m.control == &control && m.tab == tab; });
  };
  for (const Control* control : order)
    if (const auto* tabs = dynamic_cast<const TabStrip*>(control); tabs && tabs->isList())
      for (int tab = 0; tab < tabs->tabCount(); ++tab)
        if (open(*tabs, tab)) assign(*tabs, tabs->caption(tab), tab);
  // Buttons and what stands outside the tabs choose before the many fields of the tabs.
  for (const Control* control : order)
    if (open(*control) && !control->strip()) assign(*control, mnemonicText(*control));
  for (const Control* control : order)
    if (open(*control)) assign(*control, mnemonicText(*control));
  mnemonicsKnown_ = true;
}

char32_t Form::mnemonicOf(const Control& control, int tab) const {
  if (!mnemonicsKnown_) assignMnemonics();
  const auto found = std::find_if(mnemonics_.begin(), mnemonics_.end(), [&](const Mnemonic& m) {
    return m.control == &control && m.tab == tab;
  });
  return found == mnemonics_.end() ? 0 : found->letter;
}

}  // namespace fidaleon::forms
