#pragma once

#include <QIcon>
#include <QPalette>
#include <string>

namespace fidaleon::app {

/// A line drawing in the text colour of the palette, so that it fits a light and a dark theme;
/// an empty icon for a name that is not known.
QIcon icon(const std::string& name, const QPalette& palette);

}  // namespace fidaleon::app
