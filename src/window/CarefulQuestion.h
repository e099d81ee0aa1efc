#pragma once

#include <QString>
#include <string>

class QWidget;

namespace fidaleon::app {

/// Asks before something that cannot simply be taken back: Enter and Escape both say no. `doIt` is
/// the text of the button that says yes.
bool askCarefully(QWidget* over, const QString& title, const QString& question,
                  const QString& consequences, const QString& doIt);
/// A copy that should have been made cannot be: `why` says what stands in the way. True when the
/// user wants to go on all the same.
bool askToGoOnWithoutCopy(QWidget* over, const std::string& why);

}  // namespace fidaleon::app
