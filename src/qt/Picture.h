#pragma once

#include <QImage>
#include <functional>

#include "forms/Form.h"

namespace fidaleon::qt {

/// The form as it stands now, as it would look on a screen of that many pixels, with its title
/// above. `scale` is the scaling of the screen: 2 shows everything twice as large, so that half as
/// much fits. The form must be loaded; nothing of it changes.
QImage renderToPicture(forms::Form& form, QSize screen, double scale = 1.0, bool dark = false);

/// The window that such a picture is taken of, before anybody sees it.
void showUnseen(forms::Form& form, QSize screen, const std::function<void(QWidget&)>& look);

}  // namespace fidaleon::qt
