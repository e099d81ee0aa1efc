#include "text/Names.h"

#include "text/Utf8.h"

namespace fidaleon::text {

std::string withoutQuotes(std::string_view s, std::size_t most) {
  std::string two = replaceAll(s, "\"", "''");
  return most == 0 || length(two) <= most ? two : replaceAll(s, "\"", "'");
}

bool sameName(std::string_view a, std::string_view b) {
  return equalsNoCase(replaceAll(a, " ", ""), replaceAll(b, " ", ""));
}

}  // namespace fidaleon::text
