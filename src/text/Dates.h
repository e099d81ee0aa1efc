#pragma once
// Dates as the registers keep them: stored form is eight digits "yyyymmdd", blank is "---" (or
// empty, which readers accept); what people see and type is "dd/mm/yyyy". Proleptic Gregorian.

#include <optional>
#include <string>
#include <string_view>

namespace fidaleon::text {

struct Date {
  int year = 0;
  int month = 0;
  int day = 0;

  friend auto operator<=>(const Date&, const Date&) = default;
};

bool isValid(const Date& d);
/// Empty unless the text is eight digits that form a day of the calendar.
std::optional<Date> parseStored(std::string_view stored);
/// "d/m/yyyy" and "dd/mm/yyyy", also with "-" or "."; empty when it is no day of the calendar.
std::optional<Date> parseShort(std::string_view typed);

/// What a date typed in a short way is read against.
struct DateSense {
  std::optional<Date> today;  // what "hoy" is
  int latestYear = 0;         // the last one that two digits may mean; 0: they mean none
};
/// What parseShort() reads, and besides "3-5-24", "030524", "03051924", "3 may 1924", "3 de mayo de
/// 1924" and "hoy". Empty when it is no day of the calendar.
std::optional<Date> parseTyped(std::string_view typed, const DateSense& sense);
std::string toStored(const Date& d);
std::string toShort(const Date& d);

/// "", "---" and blanks are no date in any register.
bool isBlankDate(std::string_view stored);

/// "HH:mm" of a typed "H:mm", "HH:mm", "Hmm" or "HHmm"; empty when it is no time of day.
std::optional<std::string> parseTime(std::string_view typed);

/// Whole years from `from` to `to`; 0 when `to` is earlier.
int yearsBetween(const Date& from, const Date& to);

}  // namespace fidaleon::text
