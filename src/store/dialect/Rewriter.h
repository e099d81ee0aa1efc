#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/Spelling.h"
#include "store/dialect/Scope.h"
#include "store/dialect/Tokens.h"

namespace fidaleon::store {

/// A statement in the engine's own SQL.
struct Rewritten {
  std::string sql;
  /// The same in the opposite order, cut after one row; empty where no order can be turned round.
  std::string last;
  /// For each parameter the column that its value is stored in; null for a value that is only
  /// compared.
  std::vector<const Column*> targets;
  bool returnsRows = false;
};

/// Turns a statement of the parish dialect into the engine's SQL. Follows clauses, resolves names
/// in the catalogue; expressions pass through piece by piece.
///
/// What the dialect does unasked is written out: rows of one table come in the order of its key,
/// those of DISTINCT and GROUP BY sorted. A bare name that several tables have is the first
/// table's.
class Rewriter {
 public:
  Rewriter(const Schema& schema, const Spelling& spelling) : schema_(schema), spelling_(spelling) {}

  Rewritten rewrite(std::string_view shape);

 private:
  struct SelectParts;

  void insert();
  void update();
  void remove();
  void select(const Scope* outer);

  /// "SELECT DISTINCT column FROM table", whose values an index has.
  bool distinctOfIndex();
  void selectHead(SelectParts& parts);
  void selectList(SelectParts& parts, Scope& scope);
  /// How many columns one item of the select list stands for.
  std::size_t columnsOf(std::size_t begin, std::size_t end, const Scope& scope) const;
  /// One item of an order, spelt but for its direction.
  struct OrderItem {
    std::string text;
    const Column* column = nullptr;  // null for an expression
    bool descending = false;
    bool mayBeNull = true;
  };
  using Order = std::vector<OrderItem>;

  void allColumns(const Scope& scope);
  void grouping(SelectParts& parts, const Scope& scope);
  void selectOrder(const SelectParts& parts, const Scope& scope);
  void askedOrder(Order& order, const Scope& scope);
  OrderItem orderItem(std::size_t end, const Scope& scope);
  static Order defaultOrder(const SelectParts& parts);
  /// The columns that put the rows of a table in the order of its key.
  void keyOrder(const Scope::Source& source, bool descending, Order& order) const;
  void orderBy(const Order& order, const SelectParts& parts, bool reversible);
  void collectSources(std::size_t end, Scope& scope);
  void sources(std::size_t end, const Scope& scope);

  void expression(std::size_t end, const Scope& scope);
  void wordOrName(std::size_t end, const Scope& scope);
  /// A marker in an expression.
  std::string marker(const Scope& scope);
  /// The column that the marker here is compared with; null when it is none.
  const Column* comparedColumn(const Scope& scope) const;
  const Column* columnBefore(std::size_t at, const Scope& scope) const;
  const Column* columnAt(std::size_t at, const Scope& scope) const;
  bool isCondition(std::size_t first, std::size_t end) const;
  void functionCall();
  void symbol(const Scope& scope);
  bool alternatives(const Scope& scope);
  /// The value of a column: checked against its type when it is a single literal.
  void assigned(std::size_t end, const Column& target, const Scope& scope);
  std::string columnName(std::size_t end, const Scope& scope);
  const Column& targetColumn(const Table& table);
  const Table& tableName();

  const Token& token(std::size_t ahead = 0) const;
  bool accept(std::uint64_t word);
  bool accept(char symbol);
  void expect(std::uint64_t word);
  void expect(char symbol);
  void expectEnd() const;
  /// Where the clause that begins here ends: at a word that begins another one, or at the
  /// bracket that closes the whole.
  std::size_t clauseEnd() const;
  std::size_t valueEnd() const;
  [[noreturn]] void fail() const;
  void put(std::string_view piece) { out_.append(" ").append(piece); }

  const Schema& schema_;
  const Spelling& spelling_;
  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  int depth_ = 0;          // of nested SELECTs
  bool choosing_ = false;  // in a select list, or among the columns of an order
  std::string out_;
  Rewritten result_;
};

}  // namespace fidaleon::store
