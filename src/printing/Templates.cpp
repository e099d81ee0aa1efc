#include "printing/Templates.h"

#include <QCoreApplication>

namespace fidaleon::app {
namespace {

std::filesystem::path folder(const char* name, [[maybe_unused]] const char* inSources) {
  const std::filesystem::path program = QCoreApplication::applicationDirPath().toStdString();
  const std::filesystem::path installed = program / "../share/fidaleon" / name;
#ifdef FIDALEON_SOURCES
  for (const auto& place : {program / name, installed})
    if (std::filesystem::is_directory(place)) return place;
  return std::filesystem::path(FIDALEON_SOURCES) / inSources;
#else
  return std::filesystem::is_directory(program / name) ? program / name : installed;
#endif
}

}  // namespace

std::filesystem::path templateDirectory() {
  return folder("templates", "templates");
}

std::filesystem::path manualDirectory() {
  return folder("manual", "docs/manual");
}

}  // namespace fidaleon::app
