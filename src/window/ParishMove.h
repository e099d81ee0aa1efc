#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "parish/server/ServerParish.h"

class QWidget;

namespace fidaleon::app {

/// Moves a parish that this program no longer has open, with a window that says with which table it
/// is and can give it up, and tells what came of it. The answer is the folder to work on then.
std::filesystem::path moveInSight(const MoveOrder& order, const std::string& user,
                                  const std::string& since);

/// Before a parish is opened that has been moved elsewhere: the folder that the user wants to work
/// on, the same or the other one; none to open neither.
std::optional<std::filesystem::path> chooseOfMoved(const std::filesystem::path& directory);

}  // namespace fidaleon::app
