#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/Connection.h"

namespace fidaleon::app {

/// Builds "INSERT INTO table (columns) VALUES (values)" column by column.
class Insert {
 public:
  explicit Insert(std::string table) : table_(std::move(table)) {}
  Insert& text(const std::string& column, const std::string& value);
  Insert& number(const std::string& column, std::int64_t value);
  std::string sql() const;
  void into(store::Connection& connection) const { connection.Execute(sql()); }
  /// Inserts and gives the counter of the new row; right only with a single writer.
  std::int32_t into(store::Connection& connection, const std::string& key) const;

 private:
  Insert& add(const std::string& column, const std::string& value);
  std::string table_;
  std::string columns_;
  std::string values_;
};

}  // namespace fidaleon::app
