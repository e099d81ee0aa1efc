#pragma once

#include "store/Spelling.h"

namespace fidaleon::store {

class SqliteSpelling : public Spelling {
 public:
  std::string name(std::string_view canonical) const override;
  std::string parameter(int number, const Column* against) const override;
  std::string text(std::string_view value) const override;
  std::string function(std::string_view lowerCaseName) const override;
  std::string yesNo(const std::string& expression) const override;
  std::string limit(const std::string& count) const override;
  std::string entryOrder(std::string_view source) const override;

  std::string createTable(const Table& table) const override;
  std::string addColumn(const Table& table, const Column& column) const override;
  std::string createIndex(const Table& table, const Index& index) const override;
  std::string tellFigures(const Schema& schema) const override;
  std::string distinct(const Table& table, const Column& column) const override;
  std::string lastKey(const Table& table) const override;
  std::string keepKeysAfter(const Table& table, std::int64_t key) const override;

 private:
  std::string definition(const Table& table, const Column& column) const;
};

}  // namespace fidaleon::store
