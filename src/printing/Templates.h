#pragma once

#include <filesystem>

namespace fidaleon::app {

/// Where the templates of the documents lie: beside the installed program, or in the source tree
/// of a program that runs from its build.
std::filesystem::path templateDirectory();

}  // namespace fidaleon::app
