#pragma once

#include <QKeyEvent>

#include "forms/Key.h"

namespace fidaleon::qt {

/// What the handlers of a form get to see of a key.
forms::KeyPress toKeyPress(const QKeyEvent& event);
forms::KeyPress characterKey(char32_t character);

}  // namespace fidaleon::qt
