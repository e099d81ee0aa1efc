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
        put(spelling_.parameter(static_cast<int>(t.code)));
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
  put("(" + columnName(at_ + 1, scope) + " IN (");
  for (std::size_t i = 0; i < values; ++i, at_ += 4) {
    if (i != 0) put(",");
    put(spelling_.parameter(static_cast<int>(token(1).code)));
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
  put(columnName(end, scope));
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
      return spelling_.name(source->exposed) + ".*";
    }
    found = scope.column(first, token(1).text);
    at_ += 2;
  } else {
    found = scope.column(first);
    if (!found) {
      if (const std::string* alias = scope.alias(first)) return spelling_.name(*alias);
    }
  }
  if (!found) {
    const std::string& last = tokens_[at_ - 1].text;
    throw Error(ErrorKind::UnknownName, "No existe la columna «" + last + "».");
  }
  return spelling_.name(found->source->exposed) + "." + spelling_.name(found->column->name);
}

}  // namespace fidaleon::store
