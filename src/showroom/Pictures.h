#pragma once

#include <filesystem>
#include <iosfwd>

namespace fidaleon::app {

/// Renders every dialog (each tab and each mode that changes what is shown), the windows of the
/// program and one page of every document to PNG files in the directory, for people to look at.
/// True when all of them were made.
bool renderPictures(const std::filesystem::path& directory, std::ostream& out);

}  // namespace fidaleon::app
