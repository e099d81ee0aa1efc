#include "store/dialect/LiteralLifter.h"

#include <array>
#include <charconv>
#include <cstring>

#include "store/Error.h"
#include "store/dialect/Words.h"

namespace fidaleon::store {

namespace {

enum class Class : unsigned char { Blank, Letter, Digit, Quote, Bracket, Sign, Symbol };

constexpr std::array<Class, 256> classes() {
  std::array<Class, 256> table{};
  for (int c = 0; c < 256; ++c) {
    auto& entry = table[static_cast<std::size_t>(c)];
    const int low = c | 0x20;
    if ((low >= 'a' && low <= 'z') || c == '_' || c >= 0x80) {
      entry = Class::Letter;
    } else if (c >= '0' && c <= '9') {
      entry = Class::Digit;
    } else {
      entry = Class::Symbol;
    }
  }
  for (const char c : {' ', '\t', '\n', '\r'}) table[static_cast<unsigned char>(c)] = Class::Blank;
  table['"'] = table['\''] = Class::Quote;
  table['['] = Class::Bracket;
  table['-'] = table['+'] = Class::Sign;
  return table;
}

constexpr auto kClasses = classes();

Class classOf(char c) {
  return kClasses[static_cast<unsigned char>(c)];
}

/// A sign behind one of these words belongs to the number that follows.
bool expectsOperand(std::string_view word) {
  switch (packed(word)) {
    case packed("and"):
    case packed("or"):
    case packed("not"):
    case packed("where"):
    case packed("having"):
    case packed("between"):
    case packed("values"):
    case packed("on"):
    case packed("in"):
      return true;
    default:
      return false;
  }
}

}  // namespace

void LiteralLifter::begin(std::string_view sql) {
  sql_ = sql;
  at_ = copied_ = 0;
  last_ = {};
  afterOperand_ = false;
  mode_ = Mode::Keep;
  outer_.clear();
  shape_.text.clear();
  shape_.markers.clear();
  literals_.clear();
  if (!unescaped_.empty()) unescaped_.clear();
}

void LiteralLifter::lift(std::string_view sql) {
  begin(sql);
  while (at_ < sql_.size()) {
    const char c = sql_[at_];
    switch (classOf(c)) {
      case Class::Blank:
        ++at_;
        break;
      case Class::Letter:
        word();
        break;
      case Class::Digit:
        number(at_);
        break;
      case Class::Quote:
        quoted(c);
        break;
      case Class::Bracket: {
        const auto end = sql_.find(']', at_);
        if (end == std::string_view::npos) {
          throw Error(ErrorKind::Syntax, "Falta un corchete en la instrucción.");
        }
        at_ = end + 1;
        last_ = {};
        afterOperand_ = true;
        break;
      }
      case Class::Sign:
        sign();
        break;
      case Class::Symbol:
        symbol(c);
        break;
    }
  }
  shape_.text.append(sql_, copied_);
}

void LiteralLifter::word() {
  const std::size_t start = at_;
  do {
    ++at_;
  } while (at_ < sql_.size() &&
           (classOf(sql_[at_]) == Class::Letter || classOf(sql_[at_]) == Class::Digit));
  last_ = sql_.substr(start, at_ - start);
  afterOperand_ = true;
  switch (packed(last_)) {
    case packed("select"):
    case packed("order"):
    case packed("group"):
      mode_ = Mode::Keep;
      break;
    case packed("from"):
    case packed("where"):
    case packed("having"):
    case packed("on"):
    case packed("values"):
      mode_ = Mode::Lift;
      break;
    case packed("set"):
      mode_ = Mode::Target;
      break;
    default:
      break;
  }
}

void LiteralLifter::quoted(char quote) {
  const std::size_t start = at_;
  const Literal literal = textLiteral(quote);
  last_ = {};
  afterOperand_ = true;
  if (lifting()) take(start, literal);
}

Literal LiteralLifter::textLiteral(char quote) {
  const std::size_t start = at_ + 1;
  bool doubled = false;
  for (std::size_t from = start;; from += 2) {
    const auto* end = static_cast<const char*>(
        from > sql_.size() ? nullptr : std::memchr(sql_.data() + from, quote, sql_.size() - from));
    if (end == nullptr) {
      throw Error(ErrorKind::Syntax, "Hay un texto sin cerrar en la instrucción.");
    }
    from = static_cast<std::size_t>(end - sql_.data());
    if (from + 1 >= sql_.size() || sql_[from + 1] != quote) {
      at_ = from + 1;
      break;
    }
    doubled = true;
  }
  Literal literal{Literal::Kind::Text, 0, 0, sql_.substr(start, at_ - start - 1)};
  if (!doubled) return literal;
  std::string& plain = unescaped_.emplace_back();
  for (std::size_t i = 0; i < literal.text.size(); ++i) {
    plain += literal.text[i];
    if (literal.text[i] == quote) ++i;
  }
  literal.text = plain;
  return literal;
}

void LiteralLifter::number(std::size_t start) {
  last_ = {};
  afterOperand_ = true;
  if (lifting()) {
    take(start, numberLiteral(start));
    return;
  }
  while (at_ < sql_.size() && (classOf(sql_[at_]) == Class::Digit || sql_[at_] == '.')) ++at_;
}

Literal LiteralLifter::numberLiteral(std::size_t start) {
  bool whole = true;
  const std::size_t digits = at_;
  while (at_ < sql_.size() && (classOf(sql_[at_]) == Class::Digit || sql_[at_] == '.')) {
    whole = whole && sql_[at_] != '.';
    ++at_;
  }
  if (at_ < sql_.size() && classOf(sql_[at_]) == Class::Letter) {
    throw Error(ErrorKind::Syntax, "Hay un número mal escrito en la instrucción.");
  }
  Literal literal;
  literal.kind = Literal::Kind::Integer;
  const auto result = std::from_chars(sql_.data() + digits, sql_.data() + at_, literal.integer);
  if (!whole || result.ec != std::errc{}) {
    literal.kind = Literal::Kind::Real;
    const auto real = std::from_chars(sql_.data() + digits, sql_.data() + at_, literal.real);
    if (real.ptr != sql_.data() + at_) {
      throw Error(ErrorKind::Syntax, "Hay un número mal escrito en la instrucción.");
    }
  }
  if (sql_[start] == '-') {
    literal.integer = -literal.integer;
    literal.real = -literal.real;
  }
  return literal;
}

void LiteralLifter::sign() {
  const std::size_t start = at_++;
  const bool binary = afterOperand_ && !expectsOperand(last_);
  std::size_t digit = at_;
  while (digit < sql_.size() && classOf(sql_[digit]) == Class::Blank) ++digit;
  if (!binary && lifting() && digit < sql_.size() && classOf(sql_[digit]) == Class::Digit) {
    at_ = digit;
    number(start);
  } else {
    last_ = {};
    afterOperand_ = false;
  }
}

void LiteralLifter::symbol(char c) {
  if (static_cast<unsigned char>(c) < 0x20) {
    throw Error(ErrorKind::Syntax, "La instrucción contiene un carácter de control.");
  }
  ++at_;
  last_ = {};
  afterOperand_ = c == ')';
  if (c == '(') {
    outer_.push_back(mode_);
    if (mode_ == Mode::Target || mode_ == Mode::Assigned) mode_ = Mode::Lift;
  } else if (c == ')') {
    if (!outer_.empty()) {
      mode_ = outer_.back();
      outer_.pop_back();
    }
  } else if (c == '=' && mode_ == Mode::Target) {
    mode_ = Mode::Assigned;
  } else if (c == ',' && mode_ == Mode::Assigned) {
    mode_ = Mode::Target;
  }
}

/// The literal from `start` to the byte being looked at gives way to a marker.
void LiteralLifter::take(std::size_t start, const Literal& literal) {
  shape_.text.append(sql_, copied_, start - copied_);
  shape_.markers.push_back(static_cast<std::uint32_t>(shape_.text.size()));
  shape_.text.push_back(kMarker);
  copied_ = at_;
  literals_.push_back(literal);
}

bool LiteralLifter::liftAs(std::string_view sql, const Shape& known) {
  sql_ = sql;
  at_ = 0;
  literals_.clear();
  if (!unescaped_.empty()) unescaped_.clear();
  const std::string_view text = known.text;
  std::size_t from = 0;
  for (const std::uint32_t marker : known.markers) {
    if (!skip(text.substr(from, marker - from)) || !expectedLiteral()) return false;
    from = marker + 1;
  }
  return skip(text.substr(from)) && at_ == sql_.size();
}

bool LiteralLifter::skip(std::string_view known) {
  if (sql_.size() - at_ < known.size() ||
      std::memcmp(sql_.data() + at_, known.data(), known.size()) != 0)
    return false;
  at_ += known.size();
  return true;
}

bool LiteralLifter::expectedLiteral() {
  if (at_ >= sql_.size()) return false;
  const std::size_t start = at_;
  switch (classOf(sql_[at_])) {
    case Class::Quote:
      literals_.push_back(textLiteral(sql_[start]));
      return true;
    case Class::Sign:
      if (++at_ >= sql_.size() || classOf(sql_[at_]) != Class::Digit) return false;
      [[fallthrough]];
    case Class::Digit:
      literals_.push_back(numberLiteral(start));
      return true;
    default:
      return false;
  }
}

}  // namespace fidaleon::store
