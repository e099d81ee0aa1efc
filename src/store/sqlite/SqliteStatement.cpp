#include "store/sqlite/SqliteStatement.h"

#include "store/sqlite/SqliteErrors.h"

namespace fidaleon::store {

SqliteStatement::SqliteStatement(sqlite3* db, std::string_view sql) : db_(db) {
  check(sqlite3_prepare_v3(db, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                           &statement_, nullptr),
        db);
  columns_ = sqlite3_column_count(statement_);
}

SqliteStatement::~SqliteStatement() {
  sqlite3_finalize(statement_);
}

std::string SqliteStatement::columnName(int position) const {
  const char* name = sqlite3_column_name(statement_, position);
  return name != nullptr ? name : "";
}

std::string SqliteStatement::columnTable(int position) const {
  const char* name = sqlite3_column_table_name(statement_, position);
  return name != nullptr ? name : "";
}

void SqliteStatement::bind(int number, const Literal& value, Lifetime lifetime) {
  int code = SQLITE_OK;
  switch (value.kind) {
    case Literal::Kind::Null:
      code = sqlite3_bind_null(statement_, number);
      break;
    case Literal::Kind::Integer:
      code = sqlite3_bind_int64(statement_, number, value.integer);
      break;
    case Literal::Kind::Real:
      code = sqlite3_bind_double(statement_, number, value.real);
      break;
    case Literal::Kind::Text:
      // An empty view may point nowhere, which would bind Null.
      code = sqlite3_bind_text(statement_, number, value.text.empty() ? "" : value.text.data(),
                               static_cast<int>(value.text.size()),
                               lifetime == Lifetime::Call ? SQLITE_STATIC : SQLITE_TRANSIENT);
      break;
  }
  check(code, db_);
}

bool SqliteStatement::step() {
  const int code = sqlite3_step(statement_);
  if (code == SQLITE_ROW) return true;
  check(code, db_);
  return false;
}

void SqliteStatement::read(RowStore& rows) {
  rows.beginRow();
  for (int i = 0; i < rows.width(); ++i) {
    // The value is looked up once: each of SQLite's column functions would do it again.
    sqlite3_value* value = sqlite3_column_value(statement_, i);
    switch (i < columns_ ? sqlite3_value_type(value) : SQLITE_NULL) {
      case SQLITE_INTEGER:
        rows.addInteger(sqlite3_value_int64(value));
        break;
      case SQLITE_FLOAT:
        rows.addReal(sqlite3_value_double(value));
        break;
      case SQLITE_NULL:
        rows.addNull();
        break;
      default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
        rows.addText({text, static_cast<std::size_t>(sqlite3_value_bytes(value))});
      }
    }
  }
  rows.endRow();
}

void SqliteStatement::reset() {
  sqlite3_reset(statement_);
}

}  // namespace fidaleon::store
