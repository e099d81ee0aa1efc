#include "store/sqlite/SqliteSpelling.h"

#include "text/Utf8.h"

namespace fidaleon::store {

std::string SqliteSpelling::name(std::string_view canonical) const {
  return "\"" + text::replaceAll(canonical, "\"", "\"\"") + "\"";
}

std::string SqliteSpelling::parameter(int number, const Column*) const {
  return "?" + std::to_string(number);
}

std::string SqliteSpelling::text(std::string_view value) const {
  return "'" + text::replaceAll(value, "'", "''") + "'";
}

std::string SqliteSpelling::function(std::string_view lowerCaseName) const {
  for (const char* same :
       {"max", "min", "count", "sum", "avg", "val", "cint", "clng", "cstr", "trim"}) {
    if (lowerCaseName == same) return same;
  }
  if (lowerCaseName == "len") return "length";
  return {};
}

std::string SqliteSpelling::yesNo(const std::string& expression) const {
  return "-((" + expression + ") <> 0)";
}

std::string SqliteSpelling::limit(const std::string& count) const {
  return "LIMIT " + count;
}

std::string SqliteSpelling::entryOrder(std::string_view source) const {
  return std::string(source) + "._rowid_";
}

std::string SqliteSpelling::definition(const Table& table, const Column& column) const {
  const std::string quoted = name(column.name);
  const auto number = [&](const char* low, const char* high) {
    // What no binder has looked at, such as the result of an expression, is caught here.
    return quoted + " INTEGER" + (table.numbersStartAtZero() ? " DEFAULT 0" : "") + " CHECK (" +
           quoted + " IS NULL OR typeof(" + quoted + ") = 'integer' AND " + quoted + " BETWEEN " +
           low + " AND " + high + ")";
  };
  switch (column.type) {
    case Type::Counter:
      return quoted + " INTEGER PRIMARY KEY AUTOINCREMENT";
    case Type::Long:
      return number("-2147483648", "2147483647");
    case Type::Integer:
      return number("-32768", "32767");
    case Type::Byte:
      return number("0", "255");
    case Type::YesNo:
      return quoted + " INTEGER NOT NULL DEFAULT 0 CHECK (" + quoted + " IN (-1, 0))";
    case Type::Double:
      return quoted + " REAL" + (table.numbersStartAtZero() ? " DEFAULT 0" : "");
    case Type::Text:
    case Type::Memo:
      break;
  }
  return quoted + " TEXT COLLATE ES";
}

std::string SqliteSpelling::createTable(const Table& table) const {
  std::string sql = "CREATE TABLE " + name(table.name()) + " (";
  const char* separator = "\n  ";
  for (const Column& column : table.columns()) {
    sql += separator + definition(table, column);
    separator = ",\n  ";
  }
  return sql + ")";
}

std::string SqliteSpelling::addColumn(const Table& table, const Column& column) const {
  return "ALTER TABLE " + name(table.name()) + " ADD COLUMN " + definition(table, column);
}

namespace {

std::string label(const Table& table, const Index& index) {
  std::string label = table.name();
  for (const std::string& entry : index.columns) label += "_" + entry;
  return index.only.empty() ? label : label + "_" + index.only;
}

}  // namespace

std::string SqliteSpelling::createIndex(const Table& table, const Index& index) const {
  std::string columns;
  for (const std::string& entry : index.columns) {
    const bool expression = entry.starts_with("Val(");
    const std::string column = expression ? entry.substr(4, entry.size() - 5) : entry;
    columns += columns.empty() ? "" : ", ";
    columns += expression ? "val(" + name(column) + ")" : name(column);
  }
  return std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " +
         name(label(table, index)) + " ON " + name(table.name()) + " (" + columns + ")" +
         (index.only.empty() ? "" : " WHERE " + name(index.only) + " = -1");
}

std::string SqliteSpelling::tellFigures(const Schema& schema) const {
  std::string rows;
  for (const Table& table : schema.tables())
    for (const Index& index : table.indexes()) {
      if (index.figures.empty()) continue;
      std::string figures;
      for (const int n : index.figures) figures += (figures.empty() ? "" : " ") + std::to_string(n);
      rows += (rows.empty() ? "" : ", ") + std::string("(") + text(table.name()) + ", " +
              text(label(table, index)) + ", " + text(figures) + ")";
    }
  if (rows.empty()) return {};
  // The first makes the table where there is none, the last has it read.
  return "ANALYZE sqlite_schema; DELETE FROM sqlite_stat1; INSERT INTO sqlite_stat1 (tbl, idx, "
         "stat) VALUES " +
         rows + "; ANALYZE sqlite_schema;";
}

std::string SqliteSpelling::distinct(const Table& table, const Column& column) const {
  // One look-up in the index for each value; the engine by itself walks through all of it.
  const std::string c = name(column.name);
  const std::string from = " FROM " + name(table.name());
  return "WITH RECURSIVE valor(x) AS (SELECT min(" + c + ")" + from +
         " UNION ALL SELECT (SELECT min(" + c + ")" + from + " WHERE " + c +
         " > valor.x) FROM valor WHERE valor.x IS NOT NULL) SELECT NULL AS " + c +
         " WHERE EXISTS (SELECT 1" + from + " WHERE " + c +
         " IS NULL) UNION ALL SELECT x FROM valor WHERE x IS NOT NULL";
}

std::string SqliteSpelling::lastKey(const Table& table) const {
  return "SELECT seq FROM sqlite_sequence WHERE name = " + text(table.name());
}

std::string SqliteSpelling::keepKeysAfter(const Table& table, std::int64_t key) const {
  const std::string named = " WHERE name = " + text(table.name());
  const std::string number = std::to_string(key);
  return "UPDATE sqlite_sequence SET seq = max(seq, " + number + ")" + named +
         "; INSERT INTO sqlite_sequence SELECT " + text(table.name()) + ", " + number +
         " WHERE NOT EXISTS (SELECT 1 FROM sqlite_sequence" + named + ")";
}

}  // namespace fidaleon::store
