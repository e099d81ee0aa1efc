#pragma once

#include <QListWidget>
#include <QStackedWidget>
#include <functional>
#include <vector>

#include "qt/views/TabsView.h"

namespace fidaleon::qt {

/// A list of tabs, one below the other, that asks before it switches.
class AskingTabList : public QListWidget {
 public:
  using QListWidget::QListWidget;
  /// By the arrow keys, which stay in the list.
  std::function<void(int tab)> step;
  /// By the mouse, or by the letter of a tab.
  std::function<void(int tab)> ask;
  void setLetters(const std::vector<char32_t>& letters);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::vector<int> shortcuts_;  // of each tab, 0 for none
  std::vector<char32_t> letters_;
};

/// Many tabs: their captions in a list at the left, each with its note below.
class TabListView : public TabsView {
 public:
  TabListView(forms::TabStrip& strip, QWidget* parent);
  QWidget* widget() const override { return both_; }
  QWidget* focusWidget() const override { return list_; }
  void refresh(forms::Change what) override;
  void showCaption() override;
  void addPage(QWidget* page) override;

 private:
  class Delegate;
  QWidget* both_;
  AskingTabList* list_;
  QStackedWidget* pages_;
};

}  // namespace fidaleon::qt
