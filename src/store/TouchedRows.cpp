#include "store/TouchedRows.h"

#include <algorithm>

#include "store/Engine.h"
#include "store/Spelling.h"

namespace fidaleon::store {

namespace {

constexpr std::size_t kMost = 400;  // with more of them a list is as well read anew

}  // namespace

TouchedRows::TouchedRows(Connection& connection)
    : connection_(connection), before_(connection.engine().touchedSoFar()) {
  connection.engine().onTouched([this](std::string_view table, std::int64_t row) {
    ++told_;
    Row touched{std::string(table), row};
    if (rows_.size() > kMost || std::find(rows_.begin(), rows_.end(), touched) != rows_.end())
      return;
    rows_.push_back(std::move(touched));
  });
}

TouchedRows::~TouchedRows() {
  connection_.engine().onTouched({});
}

TouchedRows::Rows TouchedRows::take() {
  const std::int64_t now = connection_.engine().touchedSoFar();
  Rows touched;
  touched.all = rows_.size() > kMost || now - before_ != told_;
  touched.rows = std::exchange(rows_, {});
  before_ = now;
  told_ = 0;
  return touched;
}

std::vector<std::int64_t> TouchedRows::numbersOf(const Lead& lead, std::int64_t row) const {
  const Spelling& spell = connection_.engine().spelling();
  const std::string table = spell.name(lead.table);
  const std::string by = lead.by.empty() ? spell.entryOrder(table) : spell.name(lead.by);
  const std::string sql = "SELECT " + spell.name(lead.column) + " FROM " + table + " WHERE " + by +
                          " = " + spell.parameter(1);
  const auto prepared = connection_.engine().prepare(sql, sql);
  prepared->bind(1, {Literal::Kind::Integer, row}, Lifetime::Brief);
  RowStore rows(1);
  while (prepared->step()) prepared->read(rows);
  std::vector<std::int64_t> numbers;
  for (std::int64_t i = 0; i < rows.rows(); ++i) numbers.push_back(rows.integer(i, 0));
  return numbers;
}

}  // namespace fidaleon::store
