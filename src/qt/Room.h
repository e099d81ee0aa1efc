#pragma once

#include <QSize>

class QWidget;

namespace fidaleon::qt {

/// Gives a window the size that it wishes for, as far as its screen has room.
void resizeWithin(QWidget& window, QSize wish);

}  // namespace fidaleon::qt
