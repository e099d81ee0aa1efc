#include "parish/Preferences.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace fidaleon::app {
namespace {

constexpr const char* APPLICATION = "Fidaleon";
constexpr const char* SECTION = "Principal";
constexpr const char* USER = "Usuario";
constexpr const char* DATA = "Datos";

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

Preferences readPreferences(const Settings& settings) {
  return {settings.read(APPLICATION, SECTION, USER), settings.read(APPLICATION, SECTION, DATA)};
}

void writePreferences(Settings& settings, const Preferences& preferences) {
  settings.write(APPLICATION, SECTION, USER, preferences.user);
  settings.write(APPLICATION, SECTION, DATA, preferences.directory.string());
}

std::filesystem::path defaultDirectory() {
  const std::string data = variable("XDG_DATA_HOME");
  if (!data.empty()) return std::filesystem::path(data) / "fidaleon";
  return std::filesystem::path(variable("HOME")) / ".local/share/fidaleon";
}

std::string accountName() {
  const passwd* account = getpwuid(getuid());
  if (!account) return {};
  const std::string full = account->pw_gecos ? account->pw_gecos : "";
  const std::string name = full.substr(0, full.find(','));
  return name.empty() ? account->pw_name : name;
}

}  // namespace fidaleon::app
