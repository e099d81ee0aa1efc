#include "printing/Templates.h"

#include <QCoreApplication>

namespace fidaleon::app {

std::filesystem::path templateDirectory() {
  const std::filesystem::path program = QCoreApplication::applicationDirPath().toStdString();
  for (const char* place : {"templates", "../share/fidaleon/templates"})
    if (std::filesystem::is_directory(program / place)) return program / place;
#ifdef FIDALEON_TEMPLATES
  return FIDALEON_TEMPLATES;
#else
  return program / "../share/fidaleon/templates";
#endif
}

}  // namespace fidaleon::app
