#pragma once

#include <filesystem>

namespace fidaleon::files {

/// Where the program keeps what belongs to this account: "fidaleon" in its configuration folder
/// ($XDG_CONFIG_HOME or ~/.config). It need not be there.
std::filesystem::path configFolder();

}  // namespace fidaleon::files
