#include "qt/Keys.h"

#include <map>

namespace fidaleon::qt {

using forms::Key;

namespace {

Key namedKey(int key) {
  static const std::map<int, Key> NAMED = {
      {Qt::Key_Return, Key::Enter},
      {Qt::Key_Enter, Key::Enter},
      {Qt::Key_Escape, Key::Escape},
      {Qt::Key_Tab, Key::Tab},
      {Qt::Key_Backtab, Key::BackTab},
      {Qt::Key_Backspace, Key::Backspace},
      {Qt::Key_Delete, Key::Delete},
      {Qt::Key_Up, Key::Up},
      {Qt::Key_Down, Key::Down},
      {Qt::Key_Left, Key::Left},
      {Qt::Key_Right, Key::Right},
      {Qt::Key_Home, Key::Home},
      {Qt::Key_End, Key::End},
      {Qt::Key_PageUp, Key::PageUp},
      {Qt::Key_PageDown, Key::PageDown},
      {Qt::Key_F1, Key::F1},
      {Qt::Key_F2, Key::F2},
      {Qt::Key_F5, Key::F5},
  };
  const auto found = NAMED.find(key);
  return found == NAMED.end() ? Key::Other : found->second;
}

}  // namespace

forms::KeyPress characterKey(char32_t character) {
  forms::KeyPress press;
  press.key = character == U' ' ? Key::Space : Key::Character;
  press.character = character;
  return press;
}

forms::KeyPress toKeyPress(const QKeyEvent& event) {
  forms::KeyPress press;
  press.key = namedKey(event.key());
  const auto letters = event.text().toUcs4();
  if (press.key == Key::Other && !letters.isEmpty() && QChar::isPrint(letters.front()))
    press = characterKey(letters.front());
  press.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  press.alt = event.modifiers().testFlag(Qt::AltModifier);
  press.shift = event.modifiers().testFlag(Qt::ShiftModifier);
  press.keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  return press;
}

}  // namespace fidaleon::qt
