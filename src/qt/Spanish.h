#pragma once

class QApplication;

namespace fidaleon::qt {

/// Spanish for all that the toolkit itself says and writes; where its translation is not
/// installed, only its context menus stay in English.
void speakSpanish(QApplication& application);

}  // namespace fidaleon::qt
