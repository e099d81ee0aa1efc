#include "store/Coercion.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "store/Error.h"
#include "store/Value.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

using Kind = Literal::Kind;

struct Range {
  std::int64_t low;
  std::int64_t high;
};

Range rangeOf(Type type) {
  switch (type) {
    case Type::Byte:
      return {0, 255};
    case Type::Integer:
      return {std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()};
    default:
      return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
  }
}

void refuseRange(const std::string& number, const Column& column) {
  const Range range = rangeOf(column.type);
  throw Error(ErrorKind::Constraint, "El número " + number + " no cabe en la columna «" +
                                         column.name + "», que admite de " +
                                         std::to_string(range.low) + " a " +
                                         std::to_string(range.high) + ".");
}

void readNumber(Literal& literal, const Column& column) {
  const std::string_view s = literal.text;
  literal.integer = 0;
  literal.kind = Kind::Integer;
  const auto first = s.find_first_not_of(' ');
  if (first == std::string_view::npos || s == "---") return;
  if (!text::isNumeric(s)) {
    throw Error(ErrorKind::Constraint, "«" + text::left(s, 60) +
                                           "» no es un número, y la columna «" + column.name +
                                           "» solo admite números.");
  }
  if (const auto n = text::toInteger(s)) {
    literal.integer = *n;
  } else {
    literal.kind = Kind::Real;
    literal.real = text::Val(s);
  }
}

void toWhole(Literal& literal, const Column& column) {
  if (literal.kind == Kind::Real) {
    const double rounded = std::nearbyint(literal.real);
    if (!(std::abs(rounded) < 9e18)) refuseRange(Value(literal.real).text(), column);
    literal.kind = Kind::Integer;
    literal.integer = static_cast<std::int64_t>(rounded);
  }
  const Range range = rangeOf(column.type);
  if (literal.integer < range.low || literal.integer > range.high) {
    refuseRange(std::to_string(literal.integer), column);
  }
}

void toText(Literal& literal, const Column& column, std::deque<std::string>& texts) {
  if (literal.kind != Kind::Text) {
    const Value value = literal.kind == Kind::Real ? Value(literal.real) : Value(literal.integer);
    literal.text = texts.emplace_back(value.text());
    literal.kind = Kind::Text;
  }
  const auto width = static_cast<std::size_t>(column.width);
  if (column.type == Type::Memo || literal.text.size() <= width) return;
  const std::size_t length = text::length(literal.text);
  if (length <= width) return;
  throw Error(ErrorKind::TooLong, "El texto de «" + column.name + "» tiene " +
                                      std::to_string(length) + " caracteres y solo caben " +
                                      std::to_string(width) + ".");
}

}  // namespace

void coerce(Literal& literal, const Column& column, std::deque<std::string>& texts) {
  if (literal.kind == Kind::Null) return;
  if (isText(column.type)) {
    toText(literal, column, texts);
    return;
  }
  if (literal.kind == Kind::Text) readNumber(literal, column);
  if (column.type == Type::YesNo) {
    const bool yes = literal.kind == Kind::Real ? literal.real != 0 : literal.integer != 0;
    literal.kind = Kind::Integer;
    literal.integer = yes ? -1 : 0;
  } else if (isWhole(column.type)) {
    toWhole(literal, column);
  }
}

}  // namespace fidaleon::store
