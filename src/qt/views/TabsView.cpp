#include "qt/views/TabsView.h"

namespace fidaleon::qt {

void TabsView::choose(int tab) {
  if (!strip_.userSelect(tab) || strip_.form().activeControl() != &strip_) return;
  strip_.form().focusFirstOn(strip_);
}

}  // namespace fidaleon::qt
