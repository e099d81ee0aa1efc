#pragma once

#include <string>

#include "parish/Desk.h"

namespace fidaleon::app {

/// How a user left the window, by key. A value that cannot be kept is not worth a message.
std::string readWindowSetting(Desk& desk, const std::string& key);
void writeWindowSetting(Desk& desk, const std::string& key, const std::string& value);

}  // namespace fidaleon::app
