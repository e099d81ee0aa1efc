#pragma once

#include "store/Spelling.h"

namespace fidaleon::store {

/// Names are spelt as the catalogue has them, in quotes. What an index orders it orders wholly: the
/// counter, or the order of entry, stands behind its columns.
class PostgresSpelling : public Spelling {
 public:
  std::string name(std::string_view canonical) const override;
  std::string parameter(int number, const Column* against) const override;
  std::string number(int parameter) const override;
  std::string text(std::string_view value) const override;
  std::string function(std::string_view lowerCaseName) const override;
  std::string yesNo(const std::string& expression) const override;
  std::string truth(const std::string& column) const override;
  std::string limit(const std::string& count) const override;
  std::string allColumns(const Table& table, const std::string& source) const override;
  std::string entryOrder(std::string_view source) const override;
  bool ordersTextHere() const override { return false; }
  bool keepsEntryOrder() const override { return false; }
  std::string ordered(const std::string& item, bool descending, bool mayBeNull) const override;
  std::string unindexed(const std::string& item, const Column& column) const override;

  std::string createTable(const Table& table) const override;
  std::string addColumn(const Table& table, const Column& column) const override;
  std::string createIndex(const Table& table, const Index& index) const override;
  std::string distinct(const Table& table, const Column& column) const override;

  /// What has to be there before the first table: the place of the tables, the order of Spanish
  /// text, Yes/No, and the functions of the dialect. May be run again.
  std::string preparation() const override;
  std::string lastKey(const Table& table) const override;
  std::string keepKeysAfter(const Table& table, std::int64_t key) const override;
  std::string exclusiveUpgrade() const override;

 private:
  std::string definition(const Table& table, const Column& column) const;
  std::string counterOf(const Table& table) const;
};

/// The number under which transactions that write wait for each other.
constexpr int kWriters = 1;
/// Those of this program among the numbers that a server locks.
constexpr int kFamily = 1330;

}  // namespace fidaleon::store
