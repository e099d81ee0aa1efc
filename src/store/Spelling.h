#pragma once

#include <string>
#include <string_view>

#include "store/schema/Schema.h"

namespace fidaleon::store {

/// How one engine writes what the dialect leaves open.
class Spelling {
 public:
  virtual ~Spelling() = default;

  virtual std::string name(std::string_view canonical) const = 0;
  /// `number` counts from 1. `against`: a column that the value is compared with.
  virtual std::string parameter(int number, const Column* against = nullptr) const = 0;
  /// One that is reckoned with, or compared with another one.
  virtual std::string number(int parameter) const { return this->parameter(parameter); }
  virtual std::string text(std::string_view value) const = 0;
  /// The engine's function for one of the dialect's; empty when there is none.
  virtual std::string function(std::string_view lowerCaseName) const = 0;
  /// What a Yes/No column stores for the truth of an expression.
  virtual std::string yesNo(const std::string& expression) const = 0;
  /// A Yes/No column where a condition is wanted.
  virtual std::string truth(const std::string& column) const { return column; }
  virtual std::string limit(const std::string& count) const = 0;
  /// "*" of one table; `source` as it is spelt.
  virtual std::string allColumns(const Table&, const std::string& source) const {
    return source + ".*";
  }
  /// Orders the rows of a table whose key is not unique as they were entered.
  virtual std::string entryOrder(std::string_view canonicalTable) const = 0;
  /// Rows that are alike in the order asked for come as they were entered, unasked.
  virtual bool keepsEntryOrder() const { return true; }
  /// An item of ORDER BY; where a column may hold Null, Null comes before all values.
  virtual std::string ordered(const std::string& item, bool descending, bool /*mayBeNull*/) const {
    return descending ? item + " DESC" : item;
  }
  /// Orders like the column without tempting the engine to read the whole table in the order of
  /// an index for the sake of a few rows.
  virtual std::string unindexed(const std::string& item, const Column&) const { return item; }

  /// By the libraries of this machine, and not by those of a server, alike for all.
  virtual bool ordersTextHere() const { return true; }
  /// What has to be there before the first table; empty when nothing has.
  virtual std::string preparation() const { return {}; }
  /// Keeps other upgraders out till the end of the transaction; empty where each transaction that
  /// writes does so.
  virtual std::string exclusiveUpgrade() const { return {}; }
  virtual std::string createTable(const Table& table) const = 0;
  virtual std::string addColumn(const Table& table, const Column& column) const = 0;
  virtual std::string createIndex(const Table& table, const Index& index) const = 0;
  /// Statements, each with its semicolon, that tell the engine the figures of all indexes in place
  /// of those it was told before. Empty for one that gathers its own.
  virtual std::string tellFigures(const Schema& schema) const { return (void)schema, ""; }
  /// The values of a column that an index begins with, each once and in order.
  virtual std::string distinct(const Table& table, const Column& column) const = 0;
  /// Asks for the highest key that the counter of the table has ever given.
  virtual std::string lastKey(const Table& table) const = 0;
  /// The next key will be higher than this one, and than all that were given.
  virtual std::string keepKeysAfter(const Table& table, std::int64_t key) const = 0;
};

}  // namespace fidaleon::store
