#include "files/Identity.h"

#include <sys/stat.h>

namespace fidaleon::files {

std::optional<Identity> identityOf(const std::filesystem::path& file) noexcept {
  struct stat facts = {};
  if (::stat(file.c_str(), &facts) != 0) return std::nullopt;
  return Identity{facts.st_dev, facts.st_ino};
}

}  // namespace fidaleon::files
