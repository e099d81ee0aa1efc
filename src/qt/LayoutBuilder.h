#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <functional>

#include "forms/Layout.h"
#include "qt/views/ControlView.h"

namespace fidaleon::qt {

/// Turns the layout of a form into widgets and layouts of the toolkit. Tabs scroll each for
/// itself; buttons that end the outermost column stay below what scrolls.
class LayoutBuilder {
 public:
  using MakeView = std::function<ControlView&(forms::Control&, QWidget* parent)>;
  /// `room` is the screen that the window has to fit.
  LayoutBuilder(MakeView makeView, const QSize& room) : make_(std::move(makeView)), room_(room) {}

  void build(const forms::LayoutNode& root, QWidget* window);

 private:
  void add(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addAll(const forms::Nodes& nodes, QBoxLayout& box, QWidget* parent);
  void addRow(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addButtons(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addBar(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addGroup(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addTabs(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addItem(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addFields(const forms::LayoutNode& node, QBoxLayout& box, QWidget* parent);
  void addField(const forms::LayoutNode& node, QGridLayout& grid, int row, int pair, int span,
                QWidget* parent);
  QWidget* label(forms::Control& control, QWidget* parent);
  QWidget* control(forms::Control& control, QWidget* parent);
  QBoxLayout* withBeside(QWidget* first, const forms::LayoutNode& node, QWidget* parent);
  QWidget* scrolled(const forms::Nodes& nodes, QWidget* parent);

  MakeView make_;
  QSize room_;
};

}  // namespace fidaleon::qt
