#include "qt/Room.h"

#include <QScreen>
#include <QWidget>

namespace fidaleon::qt {

void resizeWithin(QWidget& window, QSize wish) {
  constexpr double SHARE_OF_SCREEN = 0.95;
  window.resize(wish.boundedTo(window.screen()->availableSize() * SHARE_OF_SCREEN));
}

}  // namespace fidaleon::qt
