#include "locks/HostName.h"

#include <unistd.h>

#include <array>

namespace fidaleon::locks {

std::string hostName() {
  std::array<char, 256> name{};
  const bool known = ::gethostname(name.data(), name.size() - 1) == 0 && name[0] != '\0';
  return known ? name.data() : "desconocido";
}

}  // namespace fidaleon::locks
