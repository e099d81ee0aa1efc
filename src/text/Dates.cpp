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

namespace {

/// Runs of digits and of letters; empty when anything but one sign or blanks stands between them.
std::vector<std::string> words(std::string_view typed) {
  std::vector<std::string> found;
  bool open = false;
  int signs = 0;
  for (const char c : typed) {
    const bool digit = c >= '0' && c <= '9';
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (!digit && !letter) {
      open = false;
      if (c == ' ') continue;
      if (std::string_view("/-.,").find(c) == std::string_view::npos || ++signs > 1) return {};
      continue;
    }
    const bool wasDigit = open && found.back().back() <= '9';
    if (!open || wasDigit != digit) found.emplace_back();
    found.back() += letter ? static_cast<char>(c | 0x20) : c;
    open = true;
    signs = 0;
  }
  return found;
}

/// 0 for what is no month, or not one alone.
int monthOf(const std::string& word) {
  if (allDigits(word)) return word.size() <= 2 ? number(word) : 0;
  static constexpr std::array<std::string_view, 13> names = {
      "enero",  "febrero",    "marzo",   "abril",     "mayo",      "junio",    "julio",
      "agosto", "septiembre", "octubre", "noviembre", "diciembre", "setiembre"};
  if (word.size() < 3) return 0;
  for (std::size_t i = 0; i < names.size(); ++i)
    if (names[i].starts_with(word)) return i == 12 ? 9 : static_cast<int>(i) + 1;
  return 0;
}

/// 0 when it is none.
int yearOf(const std::string& digits, const DateSense& sense) {
  if (!allDigits(digits)) return 0;
  if (digits.size() == 4) return number(digits);
  if (digits.size() != 2 || sense.latestYear == 0) return 0;
  return sense.latestYear - (sense.latestYear - number(digits)) % 100;
}

}  // namespace

std::optional<Date> parseTyped(std::string_view typed, const DateSense& sense) {
  std::vector<std::string> parts = words(typed);
  std::erase_if(parts, [](const std::string& w) { return w == "de" || w == "del"; });
  if (parts.size() == 1 && parts[0] == "hoy") return sense.today;
  if (parts.size() == 1 && allDigits(parts[0]) && (parts[0].size() == 6 || parts[0].size() == 8))
    parts = {parts[0].substr(0, 2), parts[0].substr(2, 2), parts[0].substr(4)};
  if (parts.size() != 3 || !allDigits(parts[0]) || parts[0].size() > 2) return std::nullopt;
  const Date d{yearOf(parts[2], sense), monthOf(parts[1]), number(parts[0])};
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
