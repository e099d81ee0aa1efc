#include "qt/LayoutBuilder.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScopedValueRollback>
#include <algorithm>
#include <numeric>
#include <vector>

#include "forms/Controls.h"
#include "qt/Appearance.h"
#include "qt/PageScroll.h"
#include "qt/Text.h"
#include "qt/views/MemoView.h"
#include "qt/views/PlainViews.h"
#include "qt/views/TabsView.h"

namespace fidaleon::qt {

using forms::LayoutNode;
using Kind = LayoutNode::Kind;

namespace {

bool isTall(const forms::Control& control) {
  const auto* text = dynamic_cast<const forms::TextBox*>(&control);
  return dynamic_cast<const forms::Grid*>(&control) ||
         dynamic_cast<const forms::ListBox*>(&control) || (text && text->multiline());
}

/// Fields up to this wish get exactly it; longer ones take what room there is.
constexpr int FIXED_UP_TO = 30;

bool isWide(const forms::Control& control) {
  if (control.widthChars() > 0) return control.widthChars() > FIXED_UP_TO;
  return isTall(control) || dynamic_cast<const forms::TextBox*>(&control) ||
         dynamic_cast<const forms::ComboBox*>(&control) ||
         dynamic_cast<const forms::Progress*>(&control) ||
         dynamic_cast<const forms::Label*>(&control);
}

bool growsWithItsText(const forms::Control& control) {
  const auto* text = dynamic_cast<const forms::TextBox*>(&control);
  return text && text->grows();
}

/// A text of a few lines keeps its height; what may hold more takes what there is.
bool isElastic(const forms::Control& control) {
  const auto* text = dynamic_cast<const forms::TextBox*>(&control);
  return isTall(control) &&
         !(growsWithItsText(control) || (text && text->lines() <= MEMO_FIXED_UP_TO));
}

/// Whether a part of the layout uses what height is left.
bool grows(const LayoutNode& node) {
  if (node.kind == Kind::Tabs || node.kind == Kind::Stretch) return true;
  if (node.control && node.kind == Kind::Item && isElastic(*node.control)) return true;
  return std::any_of(node.children.begin(), node.children.end(), grows);
}

/// Whether a part of a row takes what width is left.
bool widens(const LayoutNode& node) {
  if (node.kind == Kind::Buttons) return false;
  if (node.kind == Kind::Group || node.kind == Kind::Tabs) return true;
  if (node.control && isWide(*node.control)) return true;
  return std::any_of(node.children.begin(), node.children.end(), widens);
}

bool anyGrows(const forms::Nodes& nodes) {
  return std::any_of(nodes.begin(), nodes.end(), grows);
}

/// Where the next field of a grid stands: beside the one before, or in a new row.
struct Place {
  int pairs;  // of label and field in a row
  int row = 0, pair = 0;
  /// How many pairs it takes.
  int take(const LayoutNode& node) {
    const int span = node.kind == Kind::Item ? std::clamp(node.span, 1, pairs) : pairs;
    if (pair + span > pairs) {
      ++row;
      pair = 0;
    }
    return span;
  }
};

/// What a row of so many pairs needs at least.
int widthOf(const LayoutNode& fields, int pairs, const QWidget& window) {
  constexpr int GAP = 12, FIELD_LETTERS = 14;
  const auto advance = [&](const std::string& caption) {
    return window.fontMetrics().horizontalAdvance(plainCaption(caption));
  };
  std::vector<int> labels(static_cast<std::size_t>(pairs)), boxes(labels);
  Place place{pairs};
  for (const LayoutNode& node : fields.children) {
    const int span = place.take(node);
    const auto at = static_cast<std::size_t>(place.pair);
    place.pair += span;
    if (node.kind != Kind::Item || !node.control->visible()) continue;
    const forms::Label* front = node.control->label();
    labels[at] = std::max(labels[at], front ? advance(front->caption()) : 0);
    if (span == 1) boxes[at] = charsWidth(window, FIELD_LETTERS);
  }
  return std::accumulate(labels.begin(), labels.end(), 0) +
         std::accumulate(boxes.begin(), boxes.end(), 0) + pairs * (GAP + charsWidth(window, 2));
}

/// Tabs in a list stand beside their pages.
int widthBeside(const forms::TabStrip& tabs, const QWidget& window) {
  int width = 0;
  for (int tab = 0; tabs.isList() && tab < tabs.tabCount(); ++tab)
    width =
        std::max(width, window.fontMetrics().horizontalAdvance(plainCaption(tabs.caption(tab))));
  return width * 5 / 4;
}

/// As many beside each other as are wished and have room.
int pairsThatFit(const LayoutNode& fields, int room, const QWidget& window) {
  int pairs = std::max(1, fields.columns);
  while (pairs > 1 && widthOf(fields, pairs, window) > room) --pairs;
  return pairs;
}

}  // namespace

QWidget* LayoutBuilder::control(forms::Control& control, QWidget* parent) {
  ControlView& view = make_(control, parent);
  if (control.widthChars() > 0 && !isWide(control)) view.fixWidth(control.widthChars());
  return view.widget();
}

QWidget* LayoutBuilder::label(forms::Control& control, QWidget* parent) {
  if (!control.label()) return nullptr;
  return make_(*control.label(), parent).widget();
}

void LayoutBuilder::build(const LayoutNode& root, QWidget* window) {
  auto* outer = new QVBoxLayout(window);
  forms::Nodes nodes = root.kind == Kind::Column ? root.children : forms::Nodes{root};
  forms::Nodes foot;
  // A notice stays in sight above what scrolls.
  while (!nodes.empty() && nodes.front().kind == Kind::Bar) {
    addBar(nodes.front(), *outer, window);
    nodes.erase(nodes.begin());
  }
  while (!nodes.empty() && nodes.back().kind == Kind::Buttons) {
    foot.insert(foot.begin(), nodes.back());
    nodes.pop_back();
  }
  QWidget* page = scrolled(nodes, window);
  page->layout()->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(new PageScroll(page, room_, window), 1);
  addAll(foot, *outer, window);
}

QWidget* LayoutBuilder::scrolled(const forms::Nodes& nodes, QWidget* parent) {
  auto* content = new QWidget(parent);
  auto* column = new QVBoxLayout(content);
  addAll(nodes, *column, content);
  if (!anyGrows(nodes)) column->addStretch(1);
  return content;
}

void LayoutBuilder::addAll(const forms::Nodes& nodes, QBoxLayout& box, QWidget* parent) {
  for (const LayoutNode& node : nodes) add(node, box, parent);
}

void LayoutBuilder::add(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  switch (node.kind) {
    case Kind::Column:
    case Kind::Page: {
      auto* inner = new QVBoxLayout;
      box.addLayout(inner, grows(node) ? 1 : 0);
      return addAll(node.children, *inner, parent);
    }
    case Kind::Row:
      return addRow(node, box, parent);
    case Kind::Fields:
      return addFields(node, box, parent);
    case Kind::Item:
      return addItem(node, box, parent);
    case Kind::Group:
      return addGroup(node, box, parent);
    case Kind::Tabs:
      return addTabs(node, box, parent);
    case Kind::Buttons:
      return addButtons(node, box, parent);
    case Kind::Stretch:
      return box.addStretch(1);
    case Kind::Bar:
      return addBar(node, box, parent);
  }
}

void LayoutBuilder::addRow(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  auto* row = new QHBoxLayout;
  box.addLayout(row, grows(node) ? 1 : 0);
  bool wide = false;
  for (const LayoutNode& child : node.children) {
    if (child.kind == Kind::Item && !isTall(*child.control)) {
      if (QWidget* front = label(*child.control, parent)) row->addWidget(front);
      QWidget* widget = control(*child.control, parent);
      QBoxLayout* cell = withBeside(widget, child, parent);
      const bool takes = isWide(*child.control);
      cell ? row->addLayout(cell, takes) : row->addWidget(widget, takes);
      wide = wide || takes;
      continue;
    }
    // Parts of a row share its width, and stand at the top unless they use the height.
    auto* part = new QVBoxLayout;
    row->addLayout(part, widens(child) ? 1 : 0);
    add(child, *part, parent);
    if (!grows(child)) part->addStretch(1);
    // Buttons keep to the right end by a room of their own.
    wide = wide || widens(child) || child.kind == Kind::Buttons;
  }
  if (!wide) row->addStretch(1);
}

void LayoutBuilder::addButtons(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  for (const LayoutNode& child : node.children)
    if (child.control) row->addWidget(control(*child.control, parent));
  box.addLayout(row);
}

void LayoutBuilder::addBar(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  auto* frame = new QFrame(parent);
  frame->setFrameShape(QFrame::StyledPanel);
  frame->setAutoFillBackground(true);
  QPalette colours = parent->palette();
  colours.setColor(QPalette::Window, colours.color(QPalette::ToolTipBase));
  colours.setColor(QPalette::WindowText, colours.color(QPalette::ToolTipText));
  frame->setPalette(colours);
  auto* row = new QHBoxLayout(frame);
  auto* text = qobject_cast<QLabel*>(control(*node.control, frame));
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row->addWidget(text, 1);
  for (forms::Control* button : node.beside) row->addWidget(control(*button, frame));
  box.addWidget(frame);
}

void LayoutBuilder::addGroup(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  QWidget* frame = control(*node.control, parent);
  auto* inside = new QVBoxLayout(frame);
  addAll(node.children, *inside, frame);
  box.addWidget(frame, grows(node) ? 1 : 0);
}

void LayoutBuilder::addTabs(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  auto& tabs = static_cast<TabsView&>(make_(*node.control, parent));
  const auto& strip = static_cast<const forms::TabStrip&>(*node.control);
  const QScopedValueRollback room(room_, room_ - QSize(widthBeside(strip, *parent), 0));
  for (const LayoutNode& page : node.children) {
    auto* area = new PageScroll(
        scrolled(page.kind == Kind::Page ? page.children : forms::Nodes{page}, tabs.widget()),
        room_, tabs.widget());
    tabs.addPage(area);
  }
  box.addWidget(tabs.widget(), 1);
}

QBoxLayout* LayoutBuilder::withBeside(QWidget* first, const LayoutNode& node, QWidget* parent) {
  if (node.beside.empty()) return nullptr;
  auto* row = new QHBoxLayout;
  row->addWidget(first, isWide(*node.control) ? 1 : 0);
  bool wide = isWide(*node.control);
  for (forms::Control* next : node.beside) {
    if (QWidget* front = label(*next, parent)) row->addWidget(front);
    row->addWidget(control(*next, parent), isWide(*next) ? 1 : 0);
    wide = wide || isWide(*next);
  }
  if (!wide) row->addStretch(1);
  return row;
}

void LayoutBuilder::addItem(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  const bool tall = isTall(*node.control);
  QBoxLayout* line = tall ? static_cast<QBoxLayout*>(new QVBoxLayout) : new QHBoxLayout;
  box.addLayout(line, tall && !growsWithItsText(*node.control) ? 1 : 0);
  if (QWidget* front = label(*node.control, parent)) {
    line->addWidget(front);
    if (tall) static_cast<QLabel*>(front)->setWordWrap(true);
  }
  QWidget* widget = control(*node.control, parent);
  if (auto* text = qobject_cast<QLabel*>(widget)) text->setWordWrap(true);
  QBoxLayout* cell = withBeside(widget, node, parent);
  cell ? line->addLayout(cell, 1) : line->addWidget(widget, isWide(*node.control) ? 1 : 0);
  if (!cell && !tall && !isWide(*node.control)) line->addStretch(1);
}

void LayoutBuilder::addFields(const LayoutNode& node, QBoxLayout& box, QWidget* parent) {
  auto* grid = new QGridLayout;
  box.addLayout(grid, grows(node) ? 1 : 0);
  constexpr double SHARE_OF_SCREEN = 0.88;  // without the edges of window, page and group
  Place place{pairsThatFit(node, static_cast<int>(room_.width() * SHARE_OF_SCREEN), *parent)};
  const int pairs = place.pairs;
  for (int pair = 0; pair < pairs; ++pair) grid->setColumnStretch(2 * pair + 1, 1);
  for (const LayoutNode& child : node.children) {
    const int span = place.take(child);
    if (child.kind == Kind::Item) {
      addField(child, *grid, place.row, place.pair, span, parent);
    } else {
      auto* part = new QVBoxLayout;
      grid->addLayout(part, place.row, 0, 1, 2 * pairs);
      add(child, *part, parent);
    }
    place.pair += span;
  }
}

void LayoutBuilder::addField(const LayoutNode& node, QGridLayout& grid, int row, int pair, int span,
                             QWidget* parent) {
  const bool tall = isTall(*node.control);
  QWidget* front = label(*node.control, parent);
  if (front) {
    // Pairs that stand beside each other keep more distance than a label from its field.
    const int apart = pair == 0 ? 0 : charsWidth(*front, 2);
    front->setContentsMargins(apart, tall ? charsWidth(*front, 0.5) : 0, 0, 0);
    grid.addWidget(front, row, 2 * pair, tall ? Qt::AlignTop : Qt::AlignVCenter);
  }
  QWidget* widget = control(*node.control, parent);
  auto* text = qobject_cast<QLabel*>(widget);
  if (text) text->setWordWrap(span > 1);
  // A label without one of its own stands where labels stand.
  const bool inFront = text && !front;
  const int first = 2 * pair + (inFront ? 0 : 1);
  const int columns = 2 * span - (inFront ? 0 : 1);
  if (QBoxLayout* cell = withBeside(widget, node, parent))
    return grid.addLayout(cell, row, first, 1, columns);
  const Qt::Alignment place =
      isWide(*node.control) ? Qt::Alignment() : Qt::AlignLeft | Qt::AlignVCenter;
  grid.addWidget(widget, row, first, 1, columns, place);
}

}  // namespace fidaleon::qt
