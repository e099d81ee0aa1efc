#pragma once
// The words that the table of commands is written with.

#include <utility>

#include "catalogue/Command.h"

namespace fidaleon::app {

using Run = std::function<void(Workplace&, const Choice&)>;

inline Command line(const char* id, const char* text, const char* shortcut, const char* tip,
                    unsigned kinds, Needs needs, Run run) {
  Command c;
  c.id = id;
  c.text = text;
  c.shortcut = shortcut;
  c.tip = tip;
  c.kinds = kinds;
  c.needs = needs;
  c.run = std::move(run);
  return c;
}

inline Command inMenu(Menu menu, Command c) {
  c.menu = menu;
  return c;
}
inline Command inToolbar(const char* icon, Command c) {
  c.icon = icon;
  c.toolbar = true;
  return c;
}
inline Command opening(Command c) {
  c.opens = true;
  return c;
}
inline Command of(bool (*registers)(const Sacramento&), Command c) {
  c.of = registers;
  return c;
}
inline Command destructive(Command c) {
  c.destructive = true;
  return c;
}
inline Command still(Command c) {
  c.refreshes = false;
  return c;
}

}  // namespace fidaleon::app
