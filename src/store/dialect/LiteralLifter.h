#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "store/Literal.h"

namespace fidaleon::store {

/// What remains of a statement without its literals, and where they stood.
struct Shape {
  std::string text;
  std::vector<std::uint32_t> markers;
};

/// Takes the literals out of a statement in one pass over its text. What remains, with a marker
/// in the place of each literal, is the same for all statements of one shape.
///
/// Left in place are the literals that belong to the shape: numbers that name columns (the list
/// of an INSERT, the targets of an UPDATE), TOP, and whatever stands in a select list, GROUP BY
/// or ORDER BY. A minus sign becomes part of the number behind it.
class LiteralLifter {
 public:
  static constexpr char kMarker = '\x01';

  /// The results hold until the next call and as long as the text of `sql` lives.
  void lift(std::string_view sql);
  /// The same for a statement that may be one of a known shape; false when it is not. Loops issue
  /// the same shape again and again, and what is known is compared instead of read. Only for a
  /// shape that the engine has understood: nothing is wrong with it but in its literals.
  bool liftAs(std::string_view sql, const Shape& known);
  const Shape& shape() const { return shape_; }
  const std::vector<Literal>& literals() const { return literals_; }

 private:
  enum class Mode : unsigned char { Keep, Lift, Target, Assigned };

  void begin(std::string_view sql);
  void word();
  void quoted(char quote);
  void number(std::size_t start);
  void sign();
  void symbol(char c);
  void take(std::size_t start, const Literal& literal);
  /// Read the literal that begins at `at_` and stand behind it. `start`: its sign, if it has one.
  Literal textLiteral(char quote);
  Literal numberLiteral(std::size_t start);
  bool skip(std::string_view known);
  bool expectedLiteral();
  bool lifting() const { return mode_ == Mode::Lift || mode_ == Mode::Assigned; }

  std::string_view sql_;
  std::size_t at_ = 0;      // the byte being looked at
  std::size_t copied_ = 0;  // how much of the text is already in shape_
  std::string_view last_;   // the last word, empty when something else came after it
  bool afterOperand_ = false;
  Mode mode_ = Mode::Keep;
  std::vector<Mode> outer_;
  Shape shape_;
  std::vector<Literal> literals_;
  std::deque<std::string> unescaped_;
};

}  // namespace fidaleon::store
