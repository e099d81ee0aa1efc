#pragma once

#include <optional>
#include <string>

namespace fidaleon::forms {

enum class Key {
  Character,
  Enter,
  Escape,
  Tab,
  BackTab,
  Backspace,
  Delete,
  Up,
  Down,
  Left,
  Right,
  Home,
  End,
  PageUp,
  PageDown,
  F1,
  F2,
  F5,
  Space,
  Other
};

/// A key on its way to a control. A handler may swallow it or put another text in its place; a key
/// left alone goes on to the control as if nobody had looked.
struct KeyPress {
  Key key = Key::Other;
  char32_t character = 0;  // only with Key::Character and Key::Space
  bool ctrl = false;
  bool alt = false;
  bool shift = false;
  bool keypad = false;  // of the numeric block

  void swallow() { replacement = std::string(); }
  void replaceWith(std::string text) { replacement = std::move(text); }
  bool changed() const { return replacement.has_value(); }

  /// Text to insert at the caret instead; empty text means that nothing happens.
  std::optional<std::string> replacement;
};

}  // namespace fidaleon::forms
