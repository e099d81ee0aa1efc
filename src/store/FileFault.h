#pragma once

#include <filesystem>
#include <string>
#include <system_error>

#include "store/Error.h"

namespace fidaleon::store {

/// What the operating system's refusal means to a caller; "what «file»: reason." to a user.
Error fileFault(const std::string& what, const std::filesystem::path& file,
                const std::error_code& why);

}  // namespace fidaleon::store
