#include "store/Value.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "text/Numbers.h"

namespace fidaleon::store {

namespace {

std::string decimal(double n) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, n);
  return std::string(buffer, result.ptr);
}

std::int64_t whole(double n) {
  constexpr double limit = 9.2e18;
  if (std::isnan(n)) return 0;
  return static_cast<std::int64_t>(n > limit ? limit : n < -limit ? -limit : n);
}

}  // namespace

std::string Value::text() const {
  if (const auto* s = std::get_if<std::string>(&data_)) return *s;
  if (const auto* n = std::get_if<std::int64_t>(&data_)) return std::to_string(*n);
  if (const auto* n = std::get_if<double>(&data_)) return decimal(*n);
  return {};
}

std::int64_t Value::integer() const {
  if (const auto* n = std::get_if<std::int64_t>(&data_)) return *n;
  return whole(real());
}

double Value::real() const {
  if (const auto* n = std::get_if<double>(&data_)) return *n;
  if (const auto* n = std::get_if<std::int64_t>(&data_)) return static_cast<double>(*n);
  if (const auto* s = std::get_if<std::string>(&data_)) return text::Val(*s);
  return 0;
}

}  // namespace fidaleon::store
