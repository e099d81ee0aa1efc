#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace fidaleon::store {

/// What a field of a record set holds: Null, a whole number, a real number or UTF-8 text.
/// Yes/No fields are whole numbers, -1 and 0.
class Value {
 public:
  Value() = default;
  Value(std::int64_t n) : data_(n) {}
  Value(double n) : data_(n) {}
  Value(std::string s) : data_(std::move(s)) {}

  bool isNull() const { return data_.index() == 0; }
  bool isInteger() const { return data_.index() == 1; }
  bool isReal() const { return data_.index() == 2; }
  bool isText() const { return data_.index() == 3; }

  /// Null is the empty text; whole numbers in decimal.
  std::string text() const;
  /// Null is 0; text is read by its leading number.
  std::int64_t integer() const;
  double real() const;
  /// True for any number but 0.
  bool flag() const { return integer() != 0; }

  friend bool operator==(const Value&, const Value&) = default;

 private:
  std::variant<std::monostate, std::int64_t, double, std::string> data_;
};

}  // namespace fidaleon::store
