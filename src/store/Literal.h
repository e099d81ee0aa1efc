#pragma once

#include <cstdint>
#include <string_view>

namespace fidaleon::store {

/// A value taken out of the text of a statement, to be bound as a parameter. Does not own its
/// text.
struct Literal {
  enum class Kind : std::uint8_t { Null, Integer, Real, Text };

  Kind kind = Kind::Null;
  std::int64_t integer = 0;
  double real = 0;
  std::string_view text;
};

}  // namespace fidaleon::store
