#pragma once

#include <QLineEdit>
#include <QString>
#include <QWidget>
#include <string>
#include <vector>

namespace fidaleon::qt {

/// What in the window takes the focus and has nothing that a screen reader could call it by, as
/// kind, class and name of the widget. The lines of lists and tables have their texts.
std::vector<std::string> namelessControls(QWidget& window);

/// The button within the field that empties it bears this name.
void nameClearButton(QLineEdit& field, const QString& name);

}  // namespace fidaleon::qt
