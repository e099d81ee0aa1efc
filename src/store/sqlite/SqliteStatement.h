#pragma once

#include <sqlite3.h>

#include <string_view>

#include "store/Engine.h"

namespace fidaleon::store {

class SqliteStatement : public Statement {
 public:
  SqliteStatement(sqlite3* db, std::string_view sql);
  ~SqliteStatement() override;
  SqliteStatement(const SqliteStatement&) = delete;
  SqliteStatement& operator=(const SqliteStatement&) = delete;

  int columnCount() const override { return columns_; }
  std::string columnName(int position) const override;
  std::string columnTable(int position) const override;
  void bind(int number, const Literal& value, Lifetime lifetime) override;
  bool step() override;
  void read(RowStore& rows) override;
  void reset() override;

 private:
  sqlite3* db_;
  sqlite3_stmt* statement_ = nullptr;
  int columns_ = 0;
};

}  // namespace fidaleon::store
