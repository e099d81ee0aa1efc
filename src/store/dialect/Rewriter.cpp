#include "store/dialect/Rewriter.h"

#include "store/Error.h"
#include "store/dialect/Words.h"
#include "text/Utf8.h"

namespace fidaleon::store {

Rewritten Rewriter::rewrite(std::string_view shape) {
  tokens_ = tokenized(shape);
  at_ = 0;
  depth_ = 0;
  out_.clear();
  result_ = {};
  std::size_t markers = 0;
  for (const Token& t : tokens_) markers += t.kind == Token::Kind::Marker ? 1 : 0;
  result_.targets.assign(markers, nullptr);
  if (accept(packed("insert"))) {
    insert();
  } else if (accept(packed("update"))) {
    update();
  } else if (accept(packed("delete"))) {
    remove();
  } else if (token().is(packed("select"))) {
    result_.returnsRows = true;
    if (!distinctOfIndex()) select(nullptr);
  } else {
    fail();
  }
  expectEnd();
  result_.sql = std::move(out_);
  return std::move(result_);
}

void Rewriter::insert() {
  expect(packed("into"));
  const Table& table = tableName();
  put("INSERT INTO " + spelling_.name(table.name()));
  std::vector<const Column*> targets;
  if (accept('(')) {
    do {
      targets.push_back(&targetColumn(table));
    } while (accept(','));
    expect(')');
  } else {
    for (const Column& column : table.columns()) targets.push_back(&column);
  }
  const char* separator = "(";
  for (const Column* column : targets) {
    put(separator + spelling_.name(column->name));
    separator = ",";
  }
  put(")");
  const Scope scope;
  if (token().is(packed("select"))) {
    select(&scope);
    return;
  }
  expect(packed("values"));
  expect('(');
  put("VALUES (");
  for (std::size_t i = 0; i < targets.size(); ++i) {
    if (i > 0) {
      expect(',');
      put(",");
    }
    assigned(valueEnd(), *targets[i], scope);
  }
  expect(')');
  put(")");
}

void Rewriter::update() {
  const Table& table = tableName();
  Scope scope;
  scope.add(table, {});
  put("UPDATE " + spelling_.name(table.name()) + " SET");
  expect(packed("set"));
  const char* separator = "";
  do {
    const Column& target = targetColumn(table);
    expect('=');
    put(separator + spelling_.name(target.name) + " =");
    assigned(valueEnd(), target, scope);
    separator = ", ";
  } while (accept(','));
  if (accept(packed("where"))) {
    put("WHERE");
    expression(clauseEnd(), scope);
  }
}

void Rewriter::remove() {
  if (!accept('*') && token().isName() && token(1).is('.') && token(2).is('*')) at_ += 3;
  expect(packed("from"));
  const Table& table = tableName();
  Scope scope;
  scope.add(table, {});
  put("DELETE FROM " + spelling_.name(table.name()));
  if (accept(packed("where"))) {
    put("WHERE");
    expression(clauseEnd(), scope);
  }
}

void Rewriter::assigned(std::size_t end, const Column& target, const Scope& scope) {
  const bool single = end == at_ + 1;
  if (single && target.type == Type::YesNo && token().is(packed("null")))
    throw Error(ErrorKind::Constraint, "El campo «" + target.name + "» tiene que ser Sí o No.");
  if (single && token().kind == Token::Kind::Marker) {
    result_.targets[token().code - 1] = &target;
  } else if (target.type == Type::YesNo && !(single && token().kind == Token::Kind::Word)) {
    std::string before = std::move(out_);
    out_.clear();
    expression(end, scope);
    out_ = before + " " + spelling_.yesNo(out_);
    return;
  }
  expression(end, scope);
}

const Table& Rewriter::tableName() {
  if (!token().isName()) fail();
  const Table* table = schema_.find(token().text);
  if (table == nullptr) {
    throw Error(ErrorKind::UnknownName, "No existe la tabla «" + token().text + "».");
  }
  ++at_;
  return *table;
}

const Column& Rewriter::targetColumn(const Table& table) {
  if (token().isName() && token(1).is('.')) at_ += 2;
  if (!token().isName() && token().kind != Token::Kind::Number) fail();
  const Column* column = table.find(token().text);
  if (column == nullptr) {
    throw Error(ErrorKind::UnknownName,
                "No existe la columna «" + token().text + "» en la tabla «" + table.name() + "».");
  }
  ++at_;
  return *column;
}

const Token& Rewriter::token(std::size_t ahead) const {
  return at_ + ahead < tokens_.size() ? tokens_[at_ + ahead] : tokens_.back();
}

bool Rewriter::accept(std::uint64_t word) {
  if (!token().is(word)) return false;
  ++at_;
  return true;
}

bool Rewriter::accept(char symbol) {
  if (!token().is(symbol)) return false;
  ++at_;
  return true;
}

void Rewriter::expect(std::uint64_t word) {
  if (!accept(word)) fail();
}

void Rewriter::expect(char symbol) {
  if (!accept(symbol)) fail();
}

void Rewriter::expectEnd() const {
  if (token().kind != Token::Kind::End) fail();
}

std::size_t Rewriter::clauseEnd() const {
  int open = 0;
  for (std::size_t i = at_;; ++i) {
    const Token& t = tokens_[i];
    if (t.kind == Token::Kind::End) return i;
    if (t.is('(')) ++open;
    if (t.is(')') && open-- == 0) return i;
    if (open > 0 || t.kind != Token::Kind::Word) continue;
    switch (t.code) {
      case packed("from"):
      case packed("where"):
      case packed("group"):
      case packed("having"):
      case packed("order"):
        return i;
      default:
        break;
    }
  }
}

std::size_t Rewriter::valueEnd() const {
  const std::size_t clause = clauseEnd();
  int open = 0;
  for (std::size_t i = at_; i < clause; ++i) {
    if (tokens_[i].is('(')) ++open;
    if (tokens_[i].is(')')) --open;
    if (open == 0 && tokens_[i].is(',')) return i;
  }
  return clause;
}

void Rewriter::fail() const {
  const Token& t = token();
  const std::string near = t.kind == Token::Kind::End      ? "del final"
                           : t.kind == Token::Kind::Marker ? "de un valor"
                                                           : "de «" + t.text + "»";
  throw Error(ErrorKind::Syntax,
              "No se entiende la instrucción para la base de datos cerca " + near + ".");
}

}  // namespace fidaleon::store
