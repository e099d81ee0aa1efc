#include "text/Numbers.h"

#include <charconv>
#include <limits>

namespace fidaleon::text {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

std::string_view withoutBlanks(std::string_view s) {
  while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
  while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
  return s;
}

}  // namespace

double Val(std::string_view s) {
  double value = 0;
  double scale = 1;
  bool negative = false;
  bool started = false;
  bool fraction = false;
  for (const char c : s) {
    if (isBlank(c)) continue;  // blanks count nowhere, not even between digits
    if (isDigit(c)) {
      value = value * 10 + (c - '0');
      if (fraction) scale *= 10;
    } else if (c == '.' && !fraction) {
      fraction = true;
    } else if ((c == '-' || c == '+') && !started) {
      negative = c == '-';
    } else {
      break;
    }
    started = true;
  }
  const double result = value / scale;
  return negative && result != 0 ? -result : result;
}

bool isNumeric(std::string_view s) {
  s = withoutBlanks(s);
  if (!s.empty() && (s.front() == '-' || s.front() == '+')) s.remove_prefix(1);
  bool digits = false;
  bool fraction = false;
  for (const char c : s) {
    if (isDigit(c)) {
      digits = true;
    } else if (c == '.' && !fraction) {
      fraction = true;
    } else {
      return false;
    }
  }
  return digits;
}

std::optional<std::int32_t> toInteger(std::string_view s) {
  s = withoutBlanks(s);
  if (s.size() > 1 && s.front() == '+' && isDigit(s[1])) s.remove_prefix(1);
  std::int32_t n = 0;
  const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), n);
  if (error != std::errc{} || end != s.data() + s.size()) return std::nullopt;
  return n;
}

}  // namespace fidaleon::text
