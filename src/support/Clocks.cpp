#include "support/Clocks.h"

#include <array>
#include <ctime>

namespace fidaleon::support {

namespace {

std::tm localNow() {
  const std::time_t t = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&t, &local);
  return local;
}

}  // namespace

text::Date SystemClock::today() const {
  const std::tm t = localNow();
  return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday};
}

std::string SystemClock::now() const {
  const std::tm t = localNow();
  std::array<char, 8> text{};
  std::strftime(text.data(), text.size(), "%H:%M", &t);
  return text.data();
}

}  // namespace fidaleon::support
