#pragma once

#include "qt/views/ControlView.h"

namespace fidaleon::qt {

/// Tabs and their pages: whoever shows them asks before it switches.
class TabsView : public ControlView {
 public:
  explicit TabsView(forms::TabStrip& strip) : ControlView(strip), strip_(strip) {}
  virtual void addPage(QWidget* page) = 0;
  /// Brings the tab to the front and the focus to its first field, unless the form has sent it
  /// somewhere else.
  void choose(int tab);

 protected:
  forms::TabStrip& strip() const { return strip_; }

 private:
  forms::TabStrip& strip_;
};

}  // namespace fidaleon::qt
