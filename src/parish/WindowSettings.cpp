#include "parish/WindowSettings.h"

namespace fidaleon::app {
namespace {

std::string section(Desk& desk) {
  return desk.config().Usuario + "\\" + desk.config().Idioma + "\\Ventana";
}

}  // namespace

std::string readWindowSetting(Desk& desk, const std::string& key) {
  return desk.entorno().settings.read(desk.config().AppTitle, section(desk), key);
}

void writeWindowSetting(Desk& desk, const std::string& key, const std::string& value) {
  try {
    desk.entorno().settings.write(desk.config().AppTitle, section(desk), key, value);
  } catch (const std::runtime_error&) {
  }
}

}  // namespace fidaleon::app
