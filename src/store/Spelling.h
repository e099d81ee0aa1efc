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
  /// `number` counts from 1.
  virtual std::string parameter(int number) const = 0;
  virtual std::string text(std::string_view value) const = 0;
  /// The engine's function for one of the dialect's; empty when there is none.
  virtual std::string function(std::string_view lowerCaseName) const = 0;
  /// What a Yes/No column stores for the truth of an expression.
  virtual std::string yesNo(const std::string& expression) const = 0;
  virtual std::string limit(const std::string& count) const = 0;
  /// Orders the rows of a table whose key is not unique as they were entered.
  virtual std::string entryOrder(std::string_view canonicalTable) const = 0;

  /// What has to be there before the first table; empty when nothing has.
  virtual std::string preparation() const { return {}; }
  /// Keeps other upgraders out till the end of the transaction; empty where each transaction that
  /// writes does so.
  virtual std::string exclusiveUpgrade() const { return {}; }
  virtual std::string createTable(const Table& table) const = 0;
  virtual std::string addColumn(const Table& table, const Column& column) const = 0;
  virtual std::string createIndex(const Table& table, const Index& index) const = 0;
  /// The values of a column that an index begins with, each once and in order.
  virtual std::string distinct(const Table& table, const Column& column) const = 0;
  /// Asks for the highest key that the counter of the table has ever given.
  virtual std::string lastKey(const Table& table) const = 0;
  /// The next key will be higher than this one, and than all that were given.
  virtual std::string keepKeysAfter(const Table& table, std::int64_t key) const = 0;
};

}  // namespace fidaleon::store
