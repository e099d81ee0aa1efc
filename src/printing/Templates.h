#pragma once

#include <filesystem>

namespace fidaleon::app {

/// Where the templates of the documents lie: beside the program, where an installation puts them,
/// or in the source tree that it was built from.
std::filesystem::path templateDirectory();
/// The same of the manual. Its pictures are in "imagenes" beside that folder.
std::filesystem::path manualDirectory();

}  // namespace fidaleon::app
