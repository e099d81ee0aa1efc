#pragma once

#include <string>
#include <system_error>

namespace fidaleon::text {

/// Why the operating system refused a file or a folder, in Spanish, as the end of a sentence: "el
/// disco está lleno.".
std::string systemReason(const std::error_code& error);

}  // namespace fidaleon::text
