#include "parish/Preferences.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "parish/copies/CopyRetention.h"
#include "text/Numbers.h"

namespace fidaleon::app {
namespace {

constexpr const char* APPLICATION = "Fidaleon";
constexpr const char* SECTION = "Principal";
constexpr const char* USER = "Usuario";
constexpr const char* DATA = "Datos";
constexpr const char* WINDOW = "Ventana";

struct Line {
  const char* name;
  const char* group;  // of the user's settings; null where the workstation has it
  const char* key;
  bool harmless;  // says nothing of persons and places
};

// By Preference.
constexpr std::array<Line, 6> LINES{{
    {"Tamaño de la letra", nullptr, "Letra", true},
    {"Intro", nullptr, "Intro", true},
    {"Copias que se guardan", nullptr, "Copias", true},
    {"Carpeta de las copias", WINDOW, "copia.carpeta", false},
    {"Impresora", WINDOW, "Impresora", false},
    {"Límite de folios", FDAPI::cCRegistry::documentos, FDAPI::cCRegistry::DOCUMENTOS_MAXPAGLIBRO,
     true},
}};

const Line& lineOf(Preference preference) {
  return LINES.at(static_cast<std::size_t>(preference));
}

/// Application and section of the setting.
std::pair<std::string, std::string> placeOf(const Line& line, const FDAPI::cConfig& config) {
  if (!line.group) return {APPLICATION, SECTION};
  return {config.AppTitle, config.Usuario + "\\" + config.Idioma + "\\" + line.group};
}

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

std::string readPreference(const Settings& settings, const FDAPI::cConfig& config,
                           Preference preference) {
  const auto [application, section] = placeOf(lineOf(preference), config);
  return settings.read(application, section, lineOf(preference).key);
}

void writePreference(Settings& settings, const FDAPI::cConfig& config, Preference preference,
                     const std::string& value) {
  const auto [application, section] = placeOf(lineOf(preference), config);
  settings.write(application, section, lineOf(preference).key, value);
}

std::size_t copiesKept(const Settings& settings, const FDAPI::cConfig& config) {
  const std::string kept = readPreference(settings, config, Preference::CopiesKept);
  return text::isNumeric(kept) && text::Val(kept) >= 1 ? static_cast<std::size_t>(text::Val(kept))
                                                       : COPIES_KEPT;
}

void takeSettingsAlong(Settings& settings, const FDAPI::cConfig& config, const std::string& other) {
  const std::string from = config.Usuario + "\\";
  const std::vector<Settings::Name> all = settings.names(config.AppTitle);
  for (const auto& [section, key] : all) {
    if (!section.starts_with(from)) continue;
    const std::string to = other + "\\" + section.substr(from.size());
    if (settings.read(config.AppTitle, to, key).empty())
      settings.write(config.AppTitle, to, key, settings.read(config.AppTitle, section, key));
  }
}

std::vector<std::pair<std::string, std::string>> harmlessPreferences(const Settings& settings,
                                                                     const FDAPI::cConfig& config) {
  std::vector<std::pair<std::string, std::string>> all;
  for (std::size_t i = 0; i < LINES.size(); ++i) {
    const std::string value = readPreference(settings, config, static_cast<Preference>(i));
    const char* said = value.empty() ? "sin elegir" : "elegida";
    all.push_back({LINES[i].name, LINES[i].harmless && !value.empty() ? value : said});
  }
  return all;
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
