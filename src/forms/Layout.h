#pragma once
// Where the controls of a form stand, said beside the form and without a toolkit. It gives the tab
// order too: top to bottom, left to right, as written.

#include <string>
#include <vector>

namespace fidaleon::forms {

class Control;
class Frame;
class TabStrip;

struct LayoutNode {
  enum class Kind {
    Column,   // children under each other
    Row,      // children beside each other
    Fields,   // a grid of labels and controls in `columns` pairs; children are Item
    Item,     // one control (label in front, if it has one), with `beside` behind it
    Group,    // a Frame around its children
    Tabs,     // a TabStrip; children are Page
    Page,     // one tab, children under each other
    Buttons,  // buttons at the right end of a row
    Stretch,  // takes what room is left
    Bar,      // a notice across the top, its label with buttons behind it
  };
  Kind kind = Kind::Column;
  Control* control = nullptr;
  int columns = 1;
  int span = 1;  // pairs of columns taken by an Item
  std::vector<Control*> beside;
  std::vector<LayoutNode> children;
};

using Nodes = std::vector<LayoutNode>;

LayoutNode column(Nodes children);
LayoutNode row(Nodes children);
LayoutNode fields(int columns, Nodes items);
/// A control with its label; `span` pairs wide in a grid of fields.
LayoutNode item(Control& control, int span = 1);
/// A control with others (buttons) directly behind it.
LayoutNode item(Control& control, std::vector<Control*> beside, int span = 1);
LayoutNode group(Frame& frame, Nodes children);
LayoutNode page(Nodes children);
LayoutNode tabs(TabStrip& strip, Nodes pages);
LayoutNode buttons(std::vector<Control*> controls);
LayoutNode stretch();
LayoutNode bar(Control& notice, std::vector<Control*> buttons);

}  // namespace fidaleon::forms
