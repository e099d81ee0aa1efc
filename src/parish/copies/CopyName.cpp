#include "parish/copies/CopyName.h"

#include <charconv>
#include <cstdio>

#include "text/Names.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr std::size_t LONGEST = 192;  // bytes: the whole name stays below 255
constexpr std::string_view PATTERN = "####-##-## ##.##.##";

std::string fitForAName(const std::string& command) {
  const std::string fit = text::fileName(text::replaceAll(command, "…", ""), LONGEST);
  return fit.empty() ? "Orden" : fit;
}

bool matches(std::string_view s) {
  if (s.size() < PATTERN.size()) return false;
  for (std::size_t i = 0; i < PATTERN.size(); ++i)
    if (PATTERN[i] == '#' ? s[i] < '0' || s[i] > '9' : s[i] != PATTERN[i]) return false;
  return true;
}

int number(std::string_view s, std::size_t at, std::size_t digits) {
  int n = 0;
  std::from_chars(s.data() + at, s.data() + at + digits, n);
  return n;
}

/// Takes "-2" off the front; false when what stands there is no ordinal.
bool takeOrdinal(std::string_view& rest, int& ordinal) {
  if (!rest.starts_with('-')) return true;
  const char* const end = rest.data() + rest.size();
  const auto [behind, failed] = std::from_chars(rest.data() + 1, end, ordinal);
  rest.remove_prefix(static_cast<std::size_t>(behind - rest.data()));
  return failed == std::errc() && ordinal > 1;
}

}  // namespace

std::string CopyName::file() const {
  char when[64];
  std::snprintf(when, sizeof when, "%04d-%02d-%02d %02d.%02d.%02d", moment.day.year,
                moment.day.month, moment.day.day, moment.hour, moment.minute, moment.second);
  const std::string apart = ordinal > 1 ? "-" + std::to_string(ordinal) : std::string();
  return when + apart + " " + fitForAName(before) + ENDING;
}

std::optional<CopyName> CopyName::parse(std::string_view file) {
  if (file.ends_with(COMPRESSED)) file.remove_suffix(std::string_view(COMPRESSED).size());
  if (!matches(file) || !file.ends_with(ENDING)) return std::nullopt;
  CopyName name;
  name.moment = {{number(file, 0, 4), number(file, 5, 2), number(file, 8, 2)},
                 number(file, 11, 2),
                 number(file, 14, 2),
                 number(file, 17, 2)};
  file.remove_prefix(PATTERN.size());
  file.remove_suffix(std::string_view(ENDING).size());
  if (!isValid(name.moment) || !takeOrdinal(file, name.ordinal)) return std::nullopt;
  if (file.size() < 2 || file.front() != ' ') return std::nullopt;
  name.before = file.substr(1);
  return name;
}

}  // namespace fidaleon::app
