#pragma once
// What a database holds: tables, columns, keys, indexes and first rows, as plain data from which
// each engine spells its own definitions, and the catalogue that statements are resolved against.

#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/Value.h"

namespace fidaleon::store {

enum class Type {
  Counter,  // 32-bit, given by the database, never given twice
  Long,     // 32-bit
  Integer,  // 16-bit
  Byte,     // 0 to 255
  Double,
  YesNo,  // -1 and 0
  Text,   // up to `width` characters
  Memo,   // text of any length
};

bool isText(Type type);
/// Counter, Long, Integer or Byte.
bool isWhole(Type type);

struct Column {
  std::string name;
  Type type = Type::Text;
  int width = 0;  // Text only
  int since = 1;  // the version of the schema that brought it
  /// The table whose key it holds, 0 for none; empty when it is no reference.
  std::string refersTo = {};
  /// The row is a part of what it refers to and goes with it.
  bool belongs = false;
};

struct Index {
  /// Names of columns, or "Val(column)".
  std::vector<std::string> columns;
  bool unique = false;
  int since = 1;
  /// A Yes/No column: the index has the rows alone where it is set. For marks that few rows bear.
  std::string only = {};
  /// Rows that a large table has, and how many of them are alike in the leading column, in the two
  /// leading ones and so on: for an engine that chooses its ways by figures which it is told. Empty
  /// where it does well without.
  std::vector<int> figures = {};
};

/// One table. Built by chained calls; what a call adds carries the version given by `from`.
class Table {
 public:
  explicit Table(std::string name, int since = 1);

  Table& from(int version);
  Table& counter(const std::string& column);
  Table& add(Type type, std::initializer_list<const char*> columns, int width = 0);
  Table& longs(std::initializer_list<const char*> columns) { return add(Type::Long, columns); }
  Table& texts(std::initializer_list<const char*> columns) { return add(Type::Text, columns, 255); }
  Table& memos(std::initializer_list<const char*> columns) { return add(Type::Memo, columns); }
  Table& yesNos(std::initializer_list<const char*> columns) { return add(Type::YesNo, columns); }
  /// Columns that hold a key of another table; whoever deletes a row there asks them first.
  Table& refers(const std::string& table, std::initializer_list<const char*> columns,
                Type type = Type::Long);
  /// The same for rows that are a part of the other one.
  Table& belongsTo(const std::string& table, const std::string& column);
  /// Numbers that a statement leaves out become 0 instead of Null.
  Table& zeroNumbers();
  /// The order of rows when a statement asks for none, and an index; unique for a true key.
  Table& key(std::initializer_list<const char*> columns, bool unique);
  Table& index(std::initializer_list<const char*> columns, bool unique = false);
  /// Of the index added last.
  Table& figures(std::initializer_list<int> rows);
  /// The rows that bear `mark`, by `column`.
  Table& indexMarked(const char* mark, const char* column);
  Table& row(std::vector<Value> values);

  const std::string& name() const { return name_; }
  int since() const { return since_; }
  const std::vector<Column>& columns() const { return columns_; }
  const std::vector<Index>& indexes() const { return indexes_; }
  const std::vector<std::string>& keyColumns() const { return key_; }
  bool hasUniqueKey() const { return uniqueKey_; }
  bool numbersStartAtZero() const { return zeroNumbers_; }
  /// First rows, in the order of the columns; they come with the table.
  const std::vector<std::vector<Value>>& rows() const { return rows_; }

  /// Without regard to case; null when there is none.
  const Column* find(std::string_view column) const;

 private:
  std::string name_;
  int since_;
  int version_;
  std::vector<Column> columns_;
  std::vector<Index> indexes_;
  std::vector<std::string> key_;
  bool uniqueKey_ = false;
  bool zeroNumbers_ = false;
  std::vector<std::vector<Value>> rows_;
  std::unordered_map<std::string, std::size_t> byName_;
};

class Schema {
 public:
  /// `name` is kept in the database and tells the two kinds of database apart. A reference to a
  /// table that is not there is a logic_error.
  Schema(std::string name, int version, std::vector<Table> tables);

  const std::string& name() const { return name_; }
  int version() const { return version_; }
  const std::vector<Table>& tables() const { return tables_; }
  /// Without regard to case; null when there is none.
  const Table* find(std::string_view table) const;

 private:
  std::string name_;
  int version_;
  std::vector<Table> tables_;
  std::unordered_map<std::string, std::size_t> byName_;
};

}  // namespace fidaleon::store
