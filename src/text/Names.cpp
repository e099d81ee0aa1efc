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

std::string fileName(std::string_view s, std::size_t mostBytes) {
  std::string fit;
  for (const char c : sanitized(s)) {
    const bool forbidden = static_cast<unsigned char>(c) < ' ' || c == '\x7f' ||
                           std::string_view(":*?\"<>|&").find(c) != std::string_view::npos;
    if (!forbidden) fit += c == '/' || c == '\\' ? '-' : c;
  }
  while (fit.size() > mostBytes) fit = left(fit, length(fit) - 1);
  fit = trim(fit);
  while (fit.ends_with('.')) fit = trim(std::string_view(fit).substr(0, fit.size() - 1));
  return fit;
}

}  // namespace fidaleon::text
