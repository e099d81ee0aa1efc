#include "forms/Layout.h"

#include "forms/Controls.h"

namespace fidaleon::forms {

namespace {

LayoutNode container(LayoutNode::Kind kind, Nodes children) {
  LayoutNode node;
  node.kind = kind;
  node.children = std::move(children);
  return node;
}

}  // namespace

LayoutNode column(Nodes children) {
  return container(LayoutNode::Kind::Column, std::move(children));
}

LayoutNode row(Nodes children) {
  return container(LayoutNode::Kind::Row, std::move(children));
}

LayoutNode fields(int columns, Nodes items) {
  LayoutNode node = container(LayoutNode::Kind::Fields, std::move(items));
  node.columns = columns;
  return node;
}

LayoutNode item(Control& control, int span) {
  return item(control, {}, span);
}

LayoutNode item(Control& control, std::vector<Control*> beside, int span) {
  LayoutNode node;
  node.kind = LayoutNode::Kind::Item;
  node.control = &control;
  node.beside = std::move(beside);
  node.span = span;
  return node;
}

LayoutNode group(Frame& frame, Nodes children) {
  LayoutNode node = container(LayoutNode::Kind::Group, std::move(children));
  node.control = &frame;
  return node;
}

LayoutNode page(Nodes children) {
  return container(LayoutNode::Kind::Page, std::move(children));
}

LayoutNode tabs(TabStrip& strip, Nodes pages) {
  LayoutNode node = container(LayoutNode::Kind::Tabs, std::move(pages));
  node.control = &strip;
  return node;
}

LayoutNode buttons(std::vector<Control*> controls) {
  LayoutNode node;
  node.kind = LayoutNode::Kind::Buttons;
  for (Control* control : controls) node.children.push_back(item(*control));
  return node;
}

LayoutNode bar(Control& notice, std::vector<Control*> buttons) {
  LayoutNode node = item(notice, std::move(buttons));
  node.kind = LayoutNode::Kind::Bar;
  return node;
}

LayoutNode stretch() {
  return container(LayoutNode::Kind::Stretch, {});
}

}  // namespace fidaleon::forms
