#pragma once

#include <string>

namespace fidaleon::locks {

/// How this workstation is called in the network; "desconocido" when it does not tell.
std::string hostName();

}  // namespace fidaleon::locks
