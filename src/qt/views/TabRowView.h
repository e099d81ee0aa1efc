#pragma once

#include <QTabBar>
#include <QTabWidget>
#include <functional>

#include "qt/views/TabsView.h"

namespace fidaleon::qt {

/// A row of tabs that asks before it switches.
class AskingTabBar : public QTabBar {
 public:
  using QTabBar::QTabBar;
  /// By the arrow keys, which stay on the row of tabs.
  std::function<void(int tab)> step;
  /// In any other way.
  std::function<void(int tab)> ask;

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
};

class TabRowView : public TabsView {
 public:
  TabRowView(forms::TabStrip& strip, QWidget* parent);
  QWidget* widget() const override;
  QWidget* focusWidget() const override;
  void refresh(forms::Change what) override;
  void addPage(QWidget* page) override;

 private:
  class Pages;
  AskingTabBar* bar_;
  Pages* pages_;
};

}  // namespace fidaleon::qt
