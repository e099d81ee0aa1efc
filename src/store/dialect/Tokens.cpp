#include "store/dialect/Tokens.h"

#include "store/dialect/LiteralLifter.h"
#include "store/dialect/Words.h"

namespace fidaleon::store {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isLetter(char c) {
  const auto u = static_cast<unsigned char>(c);
  const auto low = static_cast<unsigned char>(u | 0x20);
  return (low >= 'a' && low <= 'z') || c == '_' || u >= 0x80;
}

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

class Tokenizer {
 public:
  explicit Tokenizer(std::string_view shape) : rest_(shape) {}

  std::vector<Token> all() {
    for (;;) {
      while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
      if (rest_.empty()) break;
      tokens_.push_back(next());
    }
    while (!tokens_.empty() && tokens_.back().is(';')) tokens_.pop_back();
    tokens_.emplace_back();
    return std::move(tokens_);
  }

 private:
  Token next() {
    const char c = rest_.front();
    if (c == LiteralLifter::kMarker) {
      cut(1);
      return {Token::Kind::Marker, {}, ++markers_};
    }
    if (c == '[') {
      const auto end = rest_.find(']');
      const Token token{Token::Kind::Bracketed, std::string(rest_.substr(1, end - 1)), 0};
      cut(end + 1);
      return token;
    }
    if (c == '"' || c == '\'') return {Token::Kind::Text, quoted(c), 0};
    if (isDigit(c)) {
      return {Token::Kind::Number, run([](char d) { return isDigit(d) || d == '.'; }), 0};
    }
    if (isLetter(c)) {
      std::string word = run([](char d) { return isLetter(d) || isDigit(d); });
      const std::uint64_t code = packed(word);
      return {Token::Kind::Word, std::move(word), code};
    }
    const std::string_view two = rest_.substr(0, 2);
    const bool pair = two == "<>" || two == "<=" || two == ">=";
    return {Token::Kind::Symbol, std::string(cut(pair ? 2 : 1)), 0};
  }

  /// The lifter has seen to it that the quote is closed.
  std::string quoted(char quote) {
    std::string plain;
    for (cut(1); !rest_.empty(); cut(1)) {
      if (rest_.front() == quote) {
        cut(1);
        if (rest_.empty() || rest_.front() != quote) break;
      }
      plain += rest_.front();
    }
    return plain;
  }

  template <class Accepts>
  std::string run(Accepts accepts) {
    std::size_t n = 1;
    while (n < rest_.size() && accepts(rest_[n])) ++n;
    return std::string(cut(n));
  }

  std::string_view cut(std::size_t n) {
    const std::string_view piece = rest_.substr(0, n);
    rest_.remove_prefix(piece.size());
    return piece;
  }

  std::string_view rest_;
  std::vector<Token> tokens_;
  std::uint64_t markers_ = 0;
};

}  // namespace

std::vector<Token> tokenized(std::string_view shape) {
  return Tokenizer(shape).all();
}

}  // namespace fidaleon::store
