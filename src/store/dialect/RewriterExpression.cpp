#include "store/Error.h"
#include "store/dialect/Rewriter.h"
#include "store/dialect/Words.h"
#include "text/Utf8.h"

namespace fidaleon::store {

void Rewriter::expression(std::size_t end, const Scope& scope) {
  if (at_ >= end) fail();
  while (at_ < end) {
    const Token& t = token();
    switch (t.kind) {
      case Token::Kind::Marker:
        put(marker(scope));
        ++at_;
        break;
      case Token::Kind::Number:
        put(t.text);
        ++at_;
        break;
      case Token::Kind::Text:
        put(spelling_.text(t.text));
        ++at_;
        break;
      case Token::Kind::Symbol:
        symbol(scope);
        break;
      case Token::Kind::Word:
      case Token::Kind::Bracketed:
        wordOrName(end, scope);
        break;
      case Token::Kind::End:
        fail();
    }
  }
}

namespace {

bool isComparison(const Token& t) {
  return t.kind == Token::Kind::Symbol &&
         (t.text == "=" || t.text == "<" || t.text == ">" || t.text.size() == 2);
}

bool isReckoning(const Token& t) {
  return t.is('+') || t.is('-') || t.is('*') || t.is('/');
}

}  // namespace

const Column* Rewriter::columnAt(std::size_t at, const Scope& scope) const {
  if (!tokens_[at].isName() || tokens_[at + 1].is('(')) return nullptr;
  const auto found = tokens_[at + 1].is('.') ? scope.column(tokens_[at].text, tokens_[at + 2].text)
                                             : scope.column(tokens_[at].text);
  return found ? found->column : nullptr;
}

/// The one whose name ends right before `at`.
const Column* Rewriter::columnBefore(std::size_t at, const Scope& scope) const {
  if (at == 0 || !tokens_[at - 1].isName()) return nullptr;
  const bool qualified = at >= 3 && tokens_[at - 2].is('.');
  return columnAt(qualified ? at - 3 : at - 1, scope);
}

const Column* Rewriter::comparedColumn(const Scope& scope) const {
  const auto is = [&](std::size_t back, std::uint64_t word) {
    return at_ >= back && tokens_[at_ - back].is(word);
  };
  if (at_ == 0) return nullptr;
  if (isComparison(tokens_[at_ - 1])) return columnBefore(at_ - 1, scope);
  if (isComparison(token(1))) return columnAt(at_ + 2, scope);
  if (is(1, packed("between"))) return columnBefore(at_ - 1, scope);
  if (is(1, packed("and")) && is(3, packed("between"))) return columnBefore(at_ - 3, scope);
  std::size_t open = at_;
  while (open > 0 && (tokens_[open - 1].is(',') || tokens_[open - 1].is(packed("null")) ||
                      tokens_[open - 1].kind == Token::Kind::Marker))
    --open;
  if (open < 3 || !tokens_[open - 1].is('(') || !tokens_[open - 2].is(packed("in"))) return nullptr;
  const bool negated = tokens_[open - 3].is(packed("not"));
  return columnBefore(open - (negated ? 3 : 2), scope);
}

std::string Rewriter::marker(const Scope& scope) {
  const int number = static_cast<int>(token().code);
  const Token none;
  const Token& before = at_ > 0 ? tokens_[at_ - 1] : none;
  const auto besideMarker = [&] {
    return (isComparison(before) && at_ > 1 && tokens_[at_ - 2].kind == Token::Kind::Marker) ||
           (isComparison(token(1)) && token(2).kind == Token::Kind::Marker);
  };
  if (isReckoning(before) || isReckoning(token(1)) || besideMarker())
    return spelling_.number(number);
  return spelling_.parameter(number, comparedColumn(scope));
}

/// Whether what stands here is a whole condition and no part of a comparison.
bool Rewriter::isCondition(std::size_t first, std::size_t end) const {
  const Token none;
  const auto border = [](const Token& t) {
    return t.kind == Token::Kind::End || t.is(packed("where")) || t.is(packed("and")) ||
           t.is(packed("or")) || t.is(packed("not")) || t.is(packed("having")) ||
           t.is(packed("on")) || t.is(packed("group")) || t.is(packed("order"));
  };
  const Token& before = first > 0 ? tokens_[first - 1] : none;
  const Token& behind = tokens_[end];
  const bool bracket =
      before.is('(') && (first < 2 || !tokens_[first - 2].isName() || border(tokens_[first - 2]));
  return (border(before) || bracket) && (border(behind) || behind.is(')'));
}

void Rewriter::symbol(const Scope& scope) {
  const Token& t = token();
  if (t.is('(') && token(1).is(packed("select"))) {
    ++at_;
    put("(");
    select(&scope);
    expect(')');
    put(")");
    return;
  }
  if (alternatives(scope)) return;
  if (t.is('&')) {
    put("||");
  } else if (t.text.size() == 2 ||
             std::string_view("()*,+-/=<>").find(t.text) != std::string::npos) {
    put(t.text);
  } else {
    fail();
  }
  ++at_;
}

/// "(a = 1 OR a = 2 OR a = 3)" as a list of values: the rules name every book of a parish so, and
/// engines go only so deep.
bool Rewriter::alternatives(const Scope& scope) {
  constexpr std::size_t FEW = 3;
  if (!token().is('(')) return false;
  std::size_t values = 0;
  do {
    const std::size_t at = 1 + 4 * values;  // behind the bracket or the last OR
    const Token& name = token(at);
    const bool another = name.kind == Token::Kind::Word &&
                         text::equalsNoCase(name.text, token(1).text) && token(at + 1).is('=') &&
                         token(at + 2).kind == Token::Kind::Marker;
    if (!another) return false;
  } while (token(4 * ++values).is(packed("or")));
  if (values < FEW || !token(4 * values).is(')')) return false;
  ++at_;
  const Column* column = columnAt(at_, scope);
  put("(" + columnName(at_ + 1, scope) + " IN (");
  for (std::size_t i = 0; i < values; ++i, at_ += 4) {
    if (i != 0) put(",");
    put(spelling_.parameter(static_cast<int>(token(1).code), column));
  }
  put("))");
  --at_;  // after the last value there is no further name
  return true;
}

void Rewriter::wordOrName(std::size_t end, const Scope& scope) {
  const Token& t = token();
  if (t.kind == Token::Kind::Word) {
    switch (t.code) {
      case packed("and"):
      case packed("or"):
      case packed("not"):
      case packed("in"):
      case packed("is"):
      case packed("null"):
      case packed("between"):
      case packed("exists"):
      case packed("asc"):
      case packed("desc"):
        put(t.text);
        ++at_;
        return;
      case packed("true"):
        put("-1");
        ++at_;
        return;
      case packed("false"):
        put("0");
        ++at_;
        return;
      default:
        break;
    }
    if (token(1).is('(')) {
      functionCall();
      return;
    }
  }
  const std::size_t first = at_;
  const Column* column = columnAt(first, scope);
  const std::string name = columnName(end, scope);
  const bool condition =
      !choosing_ && column != nullptr && column->type == Type::YesNo && isCondition(first, at_);
  put(condition ? spelling_.truth(name) : name);
}

void Rewriter::functionCall() {
  const std::string name = spelling_.function(text::foldCase(token().text));
  if (name.empty()) {
    throw Error(ErrorKind::UnknownName, "No existe la función «" + token().text + "».");
  }
  put(name);
  ++at_;
}

std::string Rewriter::columnName(std::size_t end, const Scope& scope) {
  const std::string first = token().text;
  ++at_;
  std::optional<Scope::Found> found;
  if (at_ + 1 < end && token().is('.')) {
    if (token(1).is('*')) {
      const Scope::Source* source = scope.source(first);
      if (source == nullptr) {
        throw Error(ErrorKind::UnknownName, "No existe la tabla «" + first + "».");
      }
      at_ += 2;
      return spelling_.allColumns(*source->table, spelling_.name(source->exposed));
    }
    found = scope.column(first, token(1).text);
    at_ += 2;
  } else {
    found = scope.column(first);
    if (!found) {
      if (const auto* alias = scope.alias(first)) return spelling_.name(alias->name);
    }
  }
  if (!found) {
    const std::string& last = tokens_[at_ - 1].text;
    throw Error(ErrorKind::UnknownName, "No existe la columna «" + last + "».");
  }
  return spelling_.name(found->source->exposed) + "." + spelling_.name(found->column->name);
}

}  // namespace fidaleon::store
