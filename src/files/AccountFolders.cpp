#include "files/AccountFolders.h"

#include <cstdlib>

namespace fidaleon::files {

namespace fs = std::filesystem;

fs::path configFolder() {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  const char* home = std::getenv("HOME");
  const fs::path base =
      config && *config == '/' ? fs::path(config) : fs::path(home ? home : ".") / ".config";
  return base / "fidaleon";
}

}  // namespace fidaleon::files
