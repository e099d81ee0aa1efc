#include "store/RowCounts.h"

#include "store/Spelling.h"

namespace fidaleon::store {

std::int64_t onlyNumber(Engine& engine, const std::string& sql) {
  const auto statement = engine.prepare(sql, sql);
  RowStore rows(1);
  if (statement->step()) statement->read(rows);
  return rows.rows() == 0 ? 0 : rows.integer(0, 0);
}

std::vector<std::int64_t> rowCounts(Engine& engine, const Schema& schema) {
  std::vector<std::int64_t> counts;
  for (const Table& table : schema.tables())
    counts.push_back(
        onlyNumber(engine, "SELECT count(*) FROM " + engine.spelling().name(table.name())));
  return counts;
}

}  // namespace fidaleon::store
