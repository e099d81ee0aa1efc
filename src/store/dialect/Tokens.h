#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fidaleon::store {

/// A piece of the shape of a statement.
struct Token {
  enum class Kind { Word, Bracketed, Number, Text, Marker, Symbol, End };

  Kind kind = Kind::End;
  /// Without brackets or quotes.
  std::string text;
  /// A word's packed letters; the number, from 1, of a marker.
  std::uint64_t code = 0;

  bool is(std::uint64_t word) const { return kind == Kind::Word && code == word; }
  bool is(char symbol) const {
    return kind == Kind::Symbol && text.size() == 1 && text[0] == symbol;
  }
  bool isName() const { return kind == Kind::Word || kind == Kind::Bracketed; }
};

/// Ends with one token of kind End; a closing semicolon is left out.
std::vector<Token> tokenized(std::string_view shape);

}  // namespace fidaleon::store
