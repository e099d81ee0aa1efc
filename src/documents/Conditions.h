#pragma once
// Conditions that the statements of several registers share.

#include <cstdint>
#include <string>

namespace fidaleon::documents {

/// From the first to the last day of a calendar year.
std::string inYear(const char* fecha, std::int32_t ano);
/// Of the books of an institution that is read with them; with its leading blank.
std::string ofBooks(const char* libros, std::int32_t idInstitucion);

}  // namespace fidaleon::documents
