#pragma once
// Numbers in text, read the way the stored statements read them.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fidaleon::text {

/// The leading number of a text ("12a" is 12, "a12" is 0, " 7" is 7); never fails.
double Val(std::string_view s);
/// Whole text is a number, blanks around it allowed.
bool isNumeric(std::string_view s);
/// Empty when the text is no 32-bit whole number.
std::optional<std::int32_t> toInteger(std::string_view s);

}  // namespace fidaleon::text
