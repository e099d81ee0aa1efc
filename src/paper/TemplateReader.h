#pragma once

#include <filesystem>
#include <string>

#include "paper/Template.h"

namespace fidaleon::paper {

/// Reads directory/name.xml and the files it includes from the same directory. The format is
/// described in templates/LEEME.md. Unknown elements, attributes and filters are errors.
/// Throws Error: MissingTemplate, BrokenTemplate.
ReportTemplate readTemplate(const std::filesystem::path& directory, const std::string& name);

}  // namespace fidaleon::paper
