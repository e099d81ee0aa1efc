#include <utility>

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
  std::vector<std::string> grouping;
  std::string filter;
  std::size_t columns = 0;
};

namespace {

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
  const bool choosing = std::exchange(choosing_, false);
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
    const std::size_t start = out_.size();
    expression(clauseEnd(), scope);
    parts.filter = out_.substr(start);
  }
  if (accept(packed("group"))) {
    expect(packed("by"));
    put("GROUP BY");
    grouping(parts, scope);
  }
  if (accept(packed("having"))) {
    put("HAVING");
    expression(clauseEnd(), scope);
  }
  selectOrder(parts, scope);
  if (!parts.top.empty()) put(spelling_.limit(parts.top));
  --depth_;
  choosing_ = choosing;
}

void Rewriter::grouping(SelectParts& parts, const Scope& scope) {
  for (const std::size_t end = clauseEnd();;) {
    const std::size_t start = out_.size();
    expression(valueEnd(), scope);
    parts.grouping.push_back(out_.substr(start));
    if (at_ == end) return;
    expect(',');
    put(",");
  }
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
  const bool choosing = std::exchange(choosing_, true);
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
    const std::size_t start = out_.size();
    if (valueStop == at_ + 1 && token().is('*'))
      allColumns(scope);
    else
      expression(valueStop, scope);
    if (!alias.empty()) {
      scope.addAlias(alias, out_.substr(start));
      put("AS " + spelling_.name(alias));
    }
    at_ = itemEnd;
    if (itemEnd == end) break;
    expect(',');
    put(",");
  }
  choosing_ = choosing;
}

void Rewriter::allColumns(const Scope& scope) {
  const char* separator = "";
  for (const Scope::Source& source : scope.sources()) {
    put(separator + spelling_.allColumns(*source.table, spelling_.name(source.exposed)));
    separator = ", ";
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
  const bool rowsOfTables = !parts.distinct && !parts.aggregate && parts.grouping.empty();
  const bool oneTable = rowsOfTables && scope.sources().size() == 1;
  const bool asked = accept(packed("order"));
  // Nothing above sees the order of an inner SELECT, unless TOP cuts it.
  if (!asked && depth_ > 1 && parts.top.empty()) return;
  Order order;
  if (asked)
    askedOrder(order, scope);
  else if (!rowsOfTables)
    order = defaultOrder(parts);
  const bool descending = !order.empty() && order.back().descending;
  if ((oneTable && !asked) || (rowsOfTables && !spelling_.keepsEntryOrder()))
    for (const Scope::Source& source : scope.sources()) keyOrder(source, descending, order);
  orderBy(order, parts, oneTable && depth_ == 1 && parts.top.empty());
}

void Rewriter::askedOrder(Order& order, const Scope& scope) {
  expect(packed("by"));
  const std::size_t end = clauseEnd();
  const std::string before = std::move(out_);
  const bool choosing = std::exchange(choosing_, true);
  while (at_ < end) {
    out_.clear();
    order.push_back(orderItem(valueEnd(), scope));
    if (at_ < end) expect(',');
  }
  choosing_ = choosing;
  out_ = before;
}

Rewriter::OrderItem Rewriter::orderItem(std::size_t end, const Scope& scope) {
  OrderItem item;
  item.descending = tokens_[end - 1].is(packed("desc"));
  const bool said = item.descending || tokens_[end - 1].is(packed("asc"));
  const std::size_t stop = end - (said ? 1 : 0);
  // A name that stands alone means the column of the result before that of a table.
  const bool alone = token().isName() && stop == at_ + 1;
  const Scope::Alias* alias = alone ? scope.alias(token().text) : nullptr;
  const bool qualified = stop == at_ + 3 && token(1).is('.');
  if (alias == nullptr && (alone || qualified)) item.column = columnAt(at_, scope);
  if (item.column != nullptr)
    item.mayBeNull = item.column->type != Type::Counter && item.column->type != Type::YesNo;
  if (token().is(packed("val")) && token(1).is('(')) item.mayBeNull = false;
  if (alias != nullptr) {
    // Not by its name, which another column of the result may have too.
    out_ += alias->expression;
    ++at_;
  }
  if (at_ < stop) expression(stop, scope);
  if (said) ++at_;
  item.text = std::move(out_);
  return item;
}

void Rewriter::orderBy(const Order& order, const SelectParts& parts, bool reversible) {
  reversible = reversible && !order.empty();
  const bool rows = !parts.distinct && !parts.aggregate && parts.grouping.empty();
  if (reversible) result_.last = out_;
  const char* separator = " ORDER BY";
  for (const OrderItem& item : order) {
    const bool tempting = rows && item.column != nullptr && !parts.filter.empty() &&
                          parts.filter.find(item.text) == std::string::npos;
    const std::string text = tempting ? spelling_.unindexed(item.text, *item.column) : item.text;
    out_ += separator + spelling_.ordered(text, item.descending, item.mayBeNull);
    if (reversible)
      result_.last += separator + spelling_.ordered(text, !item.descending, item.mayBeNull);
    separator = ",";
  }
  if (reversible) result_.last += " " + spelling_.limit("1");
}

Rewriter::Order Rewriter::defaultOrder(const SelectParts& parts) {
  Order order;
  for (const std::string& item : parts.grouping) order.push_back({item});
  if (parts.distinct && order.empty())
    for (std::size_t i = 1; i <= parts.columns; ++i) order.push_back({" " + std::to_string(i)});
  return order;
}

void Rewriter::keyOrder(const Scope::Source& source, bool descending, Order& order) const {
  const std::string prefix = spelling_.name(source.exposed);
  const auto add = [&](const std::string& text, const Column* column, bool mayBeNull) {
    for (const OrderItem& item : order)
      if (item.text == text) return;
    order.push_back({text, column, descending, mayBeNull});
  };
  for (const std::string& name : source.table->keyColumns()) {
    const Column* column = source.table->find(name);
    add(" " + prefix + "." + spelling_.name(name), column, column->type != Type::Counter);
  }
  if (!source.table->hasUniqueKey()) add(" " + spelling_.entryOrder(prefix), nullptr, false);
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
