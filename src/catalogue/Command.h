#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "catalogue/NodeView.h"
#include "catalogue/Workplace.h"

namespace fidaleon::app {

/// Where a command is shown.
enum class Menu { File, Record, Documents, View, Help };

/// Which row a command needs; List is a list, whether or not it has rows. What needs one row is not
/// given while several are chosen: it would be a guess which.
enum class Needs { Nothing, List, Row, ValidRow, AnnulledRow, SeveralRows };

/// What is chosen in the window.
struct Choice {
  const NodeView* node = nullptr;
  std::int32_t id = 0;  // key of the chosen row, 0 when none is; of the current one of several
  bool annulled = false;
  std::string edition = {};  // of the parish
  bool several = false;      // more rows are chosen than that one
};

/// One command of the program. All menus, the toolbar and the keys come from these lines.
struct Command {
  std::string id;
  std::string text;      // with its mnemonic
  std::string shortcut;  // portable form, as in "Ctrl+P"
  std::string tip;
  std::string icon;  // name in the icon theme; empty for none
  Menu menu = Menu::Record;
  bool toolbar = false;
  bool opens = false;  // what Enter and a double click do
  unsigned kinds = 0;  // bits of NodeKind; 0: everywhere
  Needs needs = Needs::Nothing;
  bool (*of)(const Sacramento&) = nullptr;  // the registers that have it; null: all
  bool document = false;     // stands in the catalogue of documents, for those who have one
  bool refreshes = true;     // may have changed rows
  bool destructive = false;  // may take rows away for good
  std::function<void(Workplace&, const Choice&)> run;
};

const std::vector<Command>& commands();

/// The command belongs to the node, whether or not a row is chosen.
bool belongs(const Command& command, const Choice& choice);
/// The command can be given now.
bool applies(const Command& command, const Choice& choice);

}  // namespace fidaleon::app
