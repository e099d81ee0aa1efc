#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

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

/// What a user may choose besides. All are texts, and an empty one leaves it to the program.
enum class Preference {
  LetterSize,    // in points; of the workstation, as the next two
  Enter,         // what the key does in an entry
  CopiesKept,    // of the newest that the program makes by itself
  CopiesFolder,  // in which a user's own are proposed; of the user, as those that follow
  Printer,       // that is proposed
  PageLimit,     // folios of a book
};

std::string readPreference(const Settings& settings, const FDAPI::cConfig& config,
                           Preference preference);
/// Throws as writePreferences does.
void writePreference(Settings& settings, const FDAPI::cConfig& config, Preference preference,
                     const std::string& value);
/// How many of the newest copies stay.
std::size_t copiesKept(const Settings& settings, const FDAPI::cConfig& config);
/// What the user of the configuration has chosen is there for the other one too, who has chosen
/// nothing yet. Throws as writePreferences does.
void takeSettingsAlong(Settings& settings, const FDAPI::cConfig& config, const std::string& other);
/// Each by its name for users; of what may name a person or a place, only whether it is set.
std::vector<std::pair<std::string, std::string>> harmlessPreferences(const Settings& settings,
                                                                     const FDAPI::cConfig& config);

/// "fidaleon" in the user's data folder ($XDG_DATA_HOME or ~/.local/share).
std::filesystem::path defaultDirectory();
/// The name of the account, as a first proposal for the user.
std::string accountName();

}  // namespace fidaleon::app
