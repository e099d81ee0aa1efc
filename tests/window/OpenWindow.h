#pragma once

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include "parish/Parish.h"
#include "window/MainWindow.h"

namespace fidaleon::app {

/// A parish of this kind with its window open; a test leaves nothing unanswered.
template <class Parish = ParishTest>
class OpenWindow : public Parish {
 protected:
  void SetUp() override { open("PartidasBautismo"); }
  void TearDown() override { EXPECT_THAT(this->user.problems(), IsEmpty()); }
  void open(const char* node, Content content = Content::Sample) {
    window.reset();
    this->desk.reset();
    if (!this->files().exists()) this->create(content);
    if (!this->desk) Parish::open();
    window = std::make_unique<MainWindow>(*this->desk);
    window->show();
    window->showNode(node);
  }
  void give(const char* command) { window->action(command)->trigger(); }
  int shown() const { return window->table().model()->rowCount(); }

  std::unique_ptr<MainWindow> window;
};

}  // namespace fidaleon::app
