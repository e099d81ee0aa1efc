#include "text/Dates.h"

#include <algorithm>
#include <array>
#include <vector>

namespace fidaleon::text {

namespace {

bool allDigits(std::string_view s) {
  return !s.empty() && std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int number(std::string_view digits) {
  int n = 0;
  for (const char c : digits) n = n * 10 + (c - '0');
  return n;
}

std::string padded(int n, int width) {
  std::string s = std::to_string(n);
  while (static_cast<int>(s.size()) < width) s.insert(s.begin(), '0');
  return s;
}

std::string_view withoutBlanks(std::string_view s) {
  const auto first = s.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

int daysOfMonth(int year, int month) {
  static constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return month == 2 && leap ? 29 : days[static_cast<std::size_t>(month - 1)];
}

std::vector<std::string_view> split(std::string_view s, std::string_view separators) {
  std::vector<std::string_view> parts;
  for (;;) {
    const auto at = s.find_first_of(separators);
    parts.push_back(s.substr(0, at));
    if (at == std::string_view::npos) return parts;
    s.remove_prefix(at + 1);
  }
}

}  // namespace

bool isValid(const Date& d) {
  return d.year >= 1 && d.year <= 9999 && d.month >= 1 && d.month <= 12 && d.day >= 1 &&
         d.day <= daysOfMonth(d.year, d.month);
}

std::optional<Date> parseStored(std::string_view stored) {
  if (stored.size() != 8 || !allDigits(stored)) return std::nullopt;
  const Date d{number(stored.substr(0, 4)), number(stored.substr(4, 2)),
               number(stored.substr(6, 2))};
  return isValid(d) ? std::optional(d) : std::nullopt;
}

std::optional<Date> parseShort(std::string_view typed) {
  const auto parts = split(withoutBlanks(typed), "/-.");
  if (parts.size() != 3 || parts[0].size() > 2 || parts[1].size() > 2 || parts[2].size() != 4) {
    return std::nullopt;
  }
  if (!std::all_of(parts.begin(), parts.end(), allDigits)) return std::nullopt;
  const Date d{number(parts[2]), number(parts[1]), number(parts[0])};
  return isValid(d) ? std::optional(d) : std::nullopt;
}

std::string toStored(const Date& d) {
  return padded(d.year, 4) + padded(d.month, 2) + padded(d.day, 2);
}

std::string toShort(const Date& d) {
  return padded(d.day, 2) + "/" + padded(d.month, 2) + "/" + padded(d.year, 4);
}

bool isBlankDate(std::string_view stored) {
  const std::string_view s = withoutBlanks(stored);
  return s.empty() || s == "---";
}

std::optional<std::string> parseTime(std::string_view typed) {
  const std::string_view s = withoutBlanks(typed);
  const auto colon = s.find(':');
  const bool hasColon = colon != std::string_view::npos;
  if (!hasColon && s.size() < 3) return std::nullopt;
  const std::string_view hour = s.substr(0, hasColon ? colon : s.size() - 2);
  const std::string_view minute = s.substr(hasColon ? colon + 1 : s.size() - 2);
  if (!allDigits(hour) || !allDigits(minute) || hour.size() > 2 || minute.size() != 2) {
    return std::nullopt;
  }
  if (number(hour) > 23 || number(minute) > 59) return std::nullopt;
  return padded(number(hour), 2) + ":" + std::string(minute);
}

int yearsBetween(const Date& from, const Date& to) {
  const bool passed = Date{0, to.month, to.day} >= Date{0, from.month, from.day};
  return std::max(0, to.year - from.year - (passed ? 0 : 1));
}

}  // namespace fidaleon::text
