#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "store/Connection.h"

namespace fidaleon::store {

/// Notes which rows a connection touches, also in what it takes back, so that a list can read those
/// again and no others. One at a time on a connection.
class TouchedRows {
 public:
  struct Row {
    std::string table;
    std::int64_t key;  // where the table counts its rows, its counter
    bool operator==(const Row&) const = default;
  };
  /// What was touched since the last call.
  struct Rows {
    bool all = false;  // they were too many, or not all are known
    std::vector<Row> rows;
    bool none() const { return !all && rows.empty(); }
  };

  /// The connection must outlive this.
  explicit TouchedRows(Connection& connection);
  ~TouchedRows();
  TouchedRows(const TouchedRows&) = delete;
  TouchedRows& operator=(const TouchedRows&) = delete;

  Rows take();
  /// How a touched row leads to others: by the number in this column of the rows of `table` whose
  /// column `by` holds its key; with none, of that very row.
  struct Lead {
    std::string column;
    std::string table;
    std::string by;
  };
  /// The numbers that it leads to, none when there is no such row any more.
  std::vector<std::int64_t> numbersOf(const Lead& lead, std::int64_t row) const;

 private:
  Connection& connection_;
  std::int64_t before_;
  std::int64_t told_ = 0;
  std::vector<Row> rows_;
};

}  // namespace fidaleon::store
