#include "store/Error.h"
#include "store/dialect/Rewriter.h"
#include "store/dialect/Words.h"
#include "text/Utf8.h"

namespace fidaleon::store {

struct Rewriter::SelectParts {
  bool distinct = false;
  bool aggregate = false;
  bool ordered = false;
  std::string top;
  std::string grouping;
  std::size_t columns = 0;
};

namespace {

constexpr std::string_view kDescending = " DESC";

bool isAggregate(const Token& t) {
  switch (t.code) {
    case packed("max"):
    case packed("min"):
    case packed("count"):
    case packed("sum"):
    case packed("avg"):
      return t.kind == Token::Kind::Word;
    default:
      return false;
  }
}

bool isJoinWord(const Token& t) {
  switch (t.code) {
    case packed("inner"):
    case packed("left"):
    case packed("right"):
    case packed("outer"):
    case packed("join"):
      return t.kind == Token::Kind::Word;
    default:
      return false;
  }
}

}  // namespace

void Rewriter::select(const Scope* outer) {
  ++depth_;
  SelectParts parts;
  Scope scope(outer);
  expect(packed("select"));
  put("SELECT");
  selectHead(parts);

  const std::size_t listBegin = at_;
  const std::size_t listEnd = clauseEnd();
  at_ = listEnd;
  const bool hasSources = accept(packed("from"));
  if (hasSources) collectSources(clauseEnd(), scope);
  const std::size_t sourcesEnd = at_;

  at_ = listBegin;
  selectList(parts, scope);
  if (hasSources) {
    at_ = listEnd + 1;
    put("FROM");
    sources(sourcesEnd, scope);
  }
  if (accept(packed("where"))) {
    put("WHERE");
    expression(clauseEnd(), scope);
  }
  if (accept(packed("group"))) {
    expect(packed("by"));
    put("GROUP BY");
    const std::size_t start = out_.size();
    expression(clauseEnd(), scope);
    parts.grouping = out_.substr(start);
  }
  if (accept(packed("having"))) {
    put("HAVING");
    expression(clauseEnd(), scope);
  }
  selectOrder(parts, scope);
  if (!parts.top.empty()) put(spelling_.limit(parts.top));
  --depth_;
}

bool Rewriter::distinctOfIndex() {
  if (!token(1).is(packed("distinct")) || !token(2).isName() || !token(3).is(packed("from")))
    return false;
  const Table* table = schema_.find(token(4).text);
  const Column* column = table != nullptr ? table->find(token(2).text) : nullptr;
  const bool ordered = token(5).is(packed("order")) && token(6).is(packed("by")) &&
                       text::equalsNoCase(token(7).text, token(2).text);
  const std::size_t end = ordered ? 8 : 5;
  if (column == nullptr || token(end).kind != Token::Kind::End) return false;
  for (const Index& index : table->indexes()) {
    if (index.columns.front() != column->name || !index.only.empty()) continue;
    put(spelling_.distinct(*table, *column));
    at_ = end;
    return true;
  }
  return false;
}

void Rewriter::selectHead(SelectParts& parts) {
  for (;;) {
    if (accept(packed("distinct"))) {
      parts.distinct = true;
      put("DISTINCT");
    } else if (accept(packed("top"))) {
      if (token().kind != Token::Kind::Number) fail();
      parts.top = token().text;
      ++at_;
    } else if (!accept(packed("all"))) {
      return;
    }
  }
}

void Rewriter::selectList(SelectParts& parts, Scope& scope) {
  const std::size_t end = clauseEnd();
  for (;;) {
    const std::size_t itemEnd = valueEnd();
    parts.columns += columnsOf(at_, itemEnd, scope);
    std::size_t valueStop = itemEnd;
    std::string alias;
    if (itemEnd >= at_ + 3 && tokens_[itemEnd - 2].is(packed("as"))) {
      alias = tokens_[itemEnd - 1].text;
      valueStop = itemEnd - 2;
    }
    for (std::size_t i = at_; i < valueStop; ++i) {
      parts.aggregate = parts.aggregate || (isAggregate(tokens_[i]) && tokens_[i + 1].is('('));
    }
    expression(valueStop, scope);
    if (!alias.empty()) {
      put("AS " + spelling_.name(alias));
      scope.addAlias(alias);
    }
    at_ = itemEnd;
    if (itemEnd == end) return;
    expect(',');
    put(",");
  }
}

std::size_t Rewriter::columnsOf(std::size_t begin, std::size_t end, const Scope& scope) const {
  const bool all = end == begin + 1 && tokens_[begin].is('*');
  const bool qualified =
      end == begin + 3 && tokens_[begin + 2].is('*') && tokens_[begin + 1].is('.');
  if (!all && !qualified) return 1;
  std::size_t columns = 0;
  for (const Scope::Source& source : scope.sources()) {
    if (all || &source == scope.source(tokens_[begin].text)) {
      columns += source.table->columns().size();
    }
  }
  return columns;
}

void Rewriter::selectOrder(const SelectParts& parts, const Scope& scope) {
  const bool oneTable =
      !parts.distinct && !parts.aggregate && parts.grouping.empty() && scope.sources().size() == 1;
  const bool reversible = oneTable && depth_ == 1 && parts.top.empty();
  if (!accept(packed("order"))) {
    // Nothing above sees the order of an inner SELECT, unless TOP cuts it.
    if (depth_ > 1 && parts.top.empty()) return;
    if (oneTable)
      orderBy(keyOrder(scope), reversible);
    else
      out_ += defaultOrder(parts);
    return;
  }
  expect(packed("by"));
  std::vector<std::string> items;
  const std::size_t end = clauseEnd();
  const std::string before = std::move(out_);
  while (at_ < end) {
    out_.clear();
    orderItem(valueEnd(), scope);
    items.push_back(out_);
    if (at_ < end) expect(',');
  }
  out_ = before;
  orderBy(items, reversible);
}

void Rewriter::orderItem(std::size_t end, const Scope& scope) {
  // A name that stands alone means the column of the result before that of a table.
  const bool alone = token().isName() &&
                     (end == at_ + 1 || token(1).is(packed("asc")) || token(1).is(packed("desc")));
  const std::string* alias = alone ? scope.alias(token().text) : nullptr;
  if (alias != nullptr) {
    put(spelling_.name(*alias));
    ++at_;
  }
  const bool descending = tokens_[end - 1].is(packed("desc"));
  const bool said = descending || tokens_[end - 1].is(packed("asc"));
  if (at_ < end - (said ? 1 : 0)) expression(end - (said ? 1 : 0), scope);
  if (said) ++at_;
  if (descending) out_ += kDescending;
}

void Rewriter::orderBy(const std::vector<std::string>& items, bool reversible) {
  std::string reversed = reversible ? out_ : std::string();
  const char* separator = " ORDER BY";
  for (const std::string& item : items) {
    out_ += separator + item;
    if (reversible)
      reversed += separator + (item.ends_with(kDescending)
                                   ? item.substr(0, item.size() - kDescending.size())
                                   : item + std::string(kDescending));
    separator = ",";
  }
  if (reversible && !items.empty()) result_.last = reversed + " " + spelling_.limit("1");
}

std::string Rewriter::defaultOrder(const SelectParts& parts) const {
  if (!parts.grouping.empty()) return " ORDER BY" + parts.grouping;
  std::string order;
  if (parts.distinct)
    for (std::size_t i = 1; i <= parts.columns; ++i)
      order += (order.empty() ? " ORDER BY " : ", ") + std::to_string(i);
  return order;
}

std::vector<std::string> Rewriter::keyOrder(const Scope& scope) const {
  const Scope::Source& source = scope.sources().front();
  const std::string prefix = spelling_.name(source.exposed);
  std::vector<std::string> items;
  for (const std::string& column : source.table->keyColumns())
    items.push_back(" " + prefix + "." + spelling_.name(column));
  if (!source.table->hasUniqueKey()) items.push_back(" " + spelling_.entryOrder(prefix));
  return items;
}

void Rewriter::collectSources(std::size_t end, Scope& scope) {
  bool expected = true;
  while (at_ < end) {
    const Token& t = token();
    if (expected && t.isName()) {
      const Table& table = tableName();
      accept(packed("as"));
      const bool aliased =
          at_ < end && token().isName() && !isJoinWord(token()) && !token().is(packed("on"));
      scope.add(table, aliased ? std::string_view(token().text) : std::string_view());
      if (aliased) ++at_;
      expected = false;
      continue;
    }
    expected = t.is(',') || t.is(packed("join")) || (expected && t.is('('));
    ++at_;
  }
}

void Rewriter::sources(std::size_t end, const Scope& scope) {
  std::size_t next = 0;
  while (at_ < end) {
    const Token& t = token();
    if (t.is(packed("on"))) {
      put("ON");
      ++at_;
      std::size_t stop = at_;
      for (int open = 0; stop < end; ++stop) {
        if (tokens_[stop].is('(')) ++open;
        if (tokens_[stop].is(')') && open-- == 0) break;
        if (open == 0 && (tokens_[stop].is(',') || isJoinWord(tokens_[stop]))) break;
      }
      expression(stop, scope);
    } else if (isJoinWord(t) || t.is(',') || t.is('(') || t.is(')')) {
      put(t.text);
      ++at_;
    } else if (t.isName() && next < scope.sources().size()) {
      const Scope::Source& source = scope.sources()[next++];
      put(spelling_.name(source.table->name()));
      ++at_;
      const bool as = accept(packed("as"));
      if (as || source.exposed != source.table->name()) {
        put("AS " + spelling_.name(source.exposed));
        ++at_;
      }
    } else {
      fail();
    }
  }
}

}  // namespace fidaleon::store
