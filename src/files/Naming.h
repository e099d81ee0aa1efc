#pragma once

#include <filesystem>

namespace fidaleon::files {

/// Gives the file this name if nobody has it; of several who try at once exactly one succeeds.
/// On the disk when it returns. False when
/// the name is taken: nothing has changed then. Throws std::filesystem::filesystem_error.
bool takeFreeName(const std::filesystem::path& file, const std::filesystem::path& name);

}  // namespace fidaleon::files
