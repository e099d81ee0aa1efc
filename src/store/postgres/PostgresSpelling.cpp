#include "store/postgres/PostgresSpelling.h"

#include <algorithm>
#include <functional>

#include "store/postgres/Link.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

constexpr int kUpgraders = 2;
constexpr const char* kEntry = "\"_orden\"";
constexpr std::size_t kLongestName = 63;

/// Without a rule for the language of the server nothing but bytes is compared in here.
constexpr const char* kPreparation = R"sql(
CREATE SCHEMA IF NOT EXISTS fidaleon;
DO $$ BEGIN
  IF to_regcollation('fidaleon.es') IS NULL THEN
    CREATE COLLATION fidaleon.es (provider = icu, locale = 'es-u-ks-level2', deterministic = false);
  END IF;
  IF to_regtype('fidaleon.yesno') IS NULL THEN
    CREATE DOMAIN fidaleon.yesno AS smallint NOT NULL DEFAULT 0 CHECK (VALUE IN (-1, 0));
  END IF;
END $$;
CREATE OR REPLACE FUNCTION fidaleon.val(text) RETURNS double precision
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
  SELECT CASE
    WHEN $1 COLLATE "C" ~ '^[0-9]{1,15}$' THEN $1::double precision
    ELSE coalesce(nullif(substring(translate($1, E' \t\r\n', '') COLLATE "C"
      FROM '^[-+]?(?:[0-9]+[.]?[0-9]*|[.][0-9]+)'), '')::double precision, 0) END $$;
CREATE OR REPLACE FUNCTION fidaleon.val(double precision) RETURNS double precision
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT coalesce($1, 0) $$;
CREATE OR REPLACE FUNCTION fidaleon.clng(double precision) RETURNS integer
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT round($1)::integer $$;
CREATE OR REPLACE FUNCTION fidaleon.clng(text) RETURNS integer
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
  SELECT CASE
    WHEN $1 COLLATE "C" ~ '^[ \t\r\n]*[-+]?([0-9]+[.]?[0-9]*|[.][0-9]+)[ \t\r\n]*$'
    THEN round($1::double precision)::integer ELSE ('x' || $1)::integer END $$;
CREATE OR REPLACE FUNCTION fidaleon.cint(double precision) RETURNS smallint
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT round($1)::smallint $$;
CREATE OR REPLACE FUNCTION fidaleon.cint(text) RETURNS smallint
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT fidaleon.clng($1)::smallint $$;
CREATE OR REPLACE FUNCTION fidaleon.cstr(text) RETURNS text
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT $1 $$;
CREATE OR REPLACE FUNCTION fidaleon.cstr(double precision) RETURNS text
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT $1::text $$;
CREATE OR REPLACE FUNCTION fidaleon.sino(boolean) RETURNS smallint
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$ SELECT CASE WHEN $1 THEN -1 ELSE 0 END::smallint $$;
CREATE OR REPLACE FUNCTION fidaleon.sino(double precision) RETURNS smallint
  LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $$
  SELECT CASE WHEN $1 <> 0 THEN -1 ELSE 0 END::smallint $$
)sql";

/// Its rows have no key of their own to tell in which order they came.
bool countsEntries(const Table& table) {
  return !table.hasUniqueKey();
}

std::string shortened(const std::string& label) {
  if (label.size() <= kLongestName) return label;
  return text::left(label, 40) + "_" + std::to_string(std::hash<std::string>()(label) % 1000000007);
}

}  // namespace

std::string PostgresSpelling::name(std::string_view canonical) const {
  return Link::name(canonical);
}

std::string PostgresSpelling::parameter(int number, const Column* against) const {
  const std::string plain = "$" + std::to_string(number);
  if (against == nullptr || isText(against->type)) return plain;
  return plain + (against->type == Type::Double ? "::float8" : "::int8");
}

std::string PostgresSpelling::number(int parameter) const {
  return "$" + std::to_string(parameter) + "::numeric";
}

std::string PostgresSpelling::text(std::string_view value) const {
  return Link::text(value);
}

std::string PostgresSpelling::function(std::string_view lowerCaseName) const {
  for (const char* same :
       {"max", "min", "count", "sum", "avg", "val", "cint", "clng", "cstr", "trim"}) {
    if (lowerCaseName == same) return same;
  }
  if (lowerCaseName == "len") return "length";
  return {};
}

std::string PostgresSpelling::yesNo(const std::string& expression) const {
  return "sino(" + expression + ")";
}

std::string PostgresSpelling::truth(const std::string& column) const {
  return "(" + column + " <> 0)";
}

std::string PostgresSpelling::limit(const std::string& count) const {
  return "LIMIT " + count;
}

std::string PostgresSpelling::allColumns(const Table& table, const std::string& source) const {
  // Another version of the program may add columns while this one runs.
  std::string all;
  for (const Column& column : table.columns())
    all += (all.empty() ? "" : ", ") + source + "." + name(column.name);
  return all;
}

std::string PostgresSpelling::entryOrder(std::string_view source) const {
  return std::string(source) + "." + kEntry;
}

std::string PostgresSpelling::ordered(const std::string& item, bool descending,
                                      bool mayBeNull) const {
  const char* const direction = descending ? " DESC" : "";
  return item + direction + (!mayBeNull ? "" : descending ? " NULLS LAST" : " NULLS FIRST");
}

std::string PostgresSpelling::unindexed(const std::string& item, const Column& column) const {
  return "(" + item + (isText(column.type) ? " || '')" : " + 0)");
}

std::string PostgresSpelling::counterOf(const Table& table) const {
  for (const Column& column : table.columns())
    if (column.type == Type::Counter) return column.name;
  return {};
}

std::string PostgresSpelling::definition(const Table& table, const Column& column) const {
  const std::string quoted = name(column.name);
  const std::string start = table.numbersStartAtZero() ? " DEFAULT 0" : "";
  switch (column.type) {
    case Type::Counter: {
      std::int64_t first = 1;  // behind the keys of the first rows
      const auto at = static_cast<std::size_t>(table.find(column.name) - table.columns().data());
      for (const auto& row : table.rows()) first = std::max(first, row[at].integer() + 1);
      return quoted + " integer GENERATED BY DEFAULT AS IDENTITY (START WITH " +
             std::to_string(first) + ") PRIMARY KEY";
    }
    case Type::Long:
      return quoted + " integer" + start;
    case Type::Integer:
      return quoted + " smallint" + start;
    case Type::Byte:
      return quoted + " smallint" + start + " CHECK (" + quoted + " BETWEEN 0 AND 255)";
    case Type::YesNo:
      return quoted + " yesno";
    case Type::Double:
      return quoted + " double precision" + start;
    case Type::Text:
      return quoted + " varchar(" + std::to_string(column.width) + ") COLLATE es";
    case Type::Memo:
      break;
  }
  return quoted + " text COLLATE es";
}

std::string PostgresSpelling::createTable(const Table& table) const {
  std::string sql = "CREATE TABLE " + name(table.name()) + " (";
  for (const Column& column : table.columns()) sql += definition(table, column) + ",\n  ";
  if (countsEntries(table)) return sql + kEntry + " bigint GENERATED ALWAYS AS IDENTITY)";
  return sql.substr(0, sql.size() - 4) + ")";
}

std::string PostgresSpelling::addColumn(const Table& table, const Column& column) const {
  return "ALTER TABLE " + name(table.name()) + " ADD COLUMN " + definition(table, column);
}

std::string PostgresSpelling::createIndex(const Table& table, const Index& index) const {
  std::string label = table.name();
  std::string columns;
  for (const std::string& entry : index.columns) {
    label += "_" + entry;
    const bool expression = entry.starts_with("Val(");
    const std::string plain = expression ? entry.substr(4, entry.size() - 5) : entry;
    columns += expression ? "val(" + name(plain) + "), " : name(plain) + " NULLS FIRST, ";
  }
  if (!index.only.empty()) label += "_" + index.only;
  const std::string counter = counterOf(table);
  columns = index.unique      ? columns.substr(0, columns.size() - 2)
            : counter.empty() ? columns + kEntry
                              : columns + name(counter);
  return std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " +
         name(shortened(label + "_i")) + " ON " + name(table.name()) + " (" + columns + ")" +
         (index.only.empty() ? "" : " WHERE " + name(index.only) + " = -1");
}

std::string PostgresSpelling::distinct(const Table& table, const Column& column) const {
  // One look-up in the index for each value; the engine by itself walks through all of it.
  const std::string c = name(column.name) + (isText(column.type) ? "::text" : "");
  const std::string from = " FROM " + name(table.name()) + " WHERE " + name(column.name);
  const std::string first = " ORDER BY " + name(column.name) + " NULLS FIRST LIMIT 1)";
  return "WITH RECURSIVE valor(x) AS ((SELECT " + c + from + " IS NOT NULL" + first +
         " UNION ALL SELECT (SELECT " + c + from + " > valor.x" + first +
         " FROM valor WHERE valor.x IS NOT NULL) SELECT NULL AS " + name(column.name) +
         " WHERE EXISTS (SELECT 1" + from +
         " IS NULL) UNION ALL SELECT x FROM valor WHERE x IS NOT NULL";
}

std::string PostgresSpelling::preparation() const {
  return kPreparation;
}

std::string PostgresSpelling::lastKey(const Table& table) const {
  // What a sequence has given last is kept in it, also when the row was taken back.
  const std::string sequence = "pg_get_serial_sequence('" +
                               text::replaceAll(name(table.name()), "'", "''") + "', '" +
                               counterOf(table) + "')";
  return "SELECT greatest(coalesce(pg_sequence_last_value(" + sequence +
         "::regclass), 0), (SELECT coalesce(max(" + name(counterOf(table)) + "), 0) FROM " +
         name(table.name()) + "))";
}

std::string PostgresSpelling::keepKeysAfter(const Table& table, std::int64_t key) const {
  if (key < 1) return "SELECT 1";
  const std::string sequence = "pg_get_serial_sequence('" +
                               text::replaceAll(name(table.name()), "'", "''") + "', '" +
                               counterOf(table) + "')";
  return "SELECT setval(" + sequence + ", greatest(" + std::to_string(key) +
         ", coalesce(pg_sequence_last_value(" + sequence + "::regclass), 0)))";
}

std::string PostgresSpelling::exclusiveUpgrade() const {
  return "SELECT pg_advisory_xact_lock(" + std::to_string(kFamily) + ", " +
         std::to_string(kUpgraders) + ")";
}

}  // namespace fidaleon::store
