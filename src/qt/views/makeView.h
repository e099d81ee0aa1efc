#pragma once

#include <memory>

#include "qt/views/ControlView.h"

namespace fidaleon::qt {

/// The view that shows a control of this kind, its widget a child of `parent`.
std::unique_ptr<ControlView> makeView(forms::Control& control, QWidget* parent);

}  // namespace fidaleon::qt
