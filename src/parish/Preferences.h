#pragma once

#include <filesystem>
#include <string>

#include "core/contract/Entorno.h"

namespace fidaleon::app {

/// What a workstation remembers between runs.
struct Preferences {
  std::string user;
  std::filesystem::path directory;  // of the parish last opened; empty on the first run
};

Preferences readPreferences(const Settings& settings);
/// Throws std::runtime_error with a message in Spanish when they cannot be kept.
void writePreferences(Settings& settings, const Preferences& preferences);

/// "fidaleon" in the user's data folder ($XDG_DATA_HOME or ~/.local/share).
std::filesystem::path defaultDirectory();
/// The name of the account, as a first proposal for the user.
std::string accountName();

}  // namespace fidaleon::app
