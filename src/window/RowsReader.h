#pragma once

#include <vector>

#include "catalogue/NodeView.h"
#include "store/Connection.h"
#include "window/SlimRows.h"

namespace fidaleon::app {

/// The rows of a node, read one after the other. A register is read book by book, each by a
/// statement of its own in the order of an index, and scattered rows by ranges of their keys: the
/// first rows are there at once, and nothing is held of those that have been read.
class RowsReader {
 public:
  /// Connection and view must outlive it. All throw store::Error.
  enum class Order { Listed, AsTheyLie };  // the second only of a node whose rows are scattered
  RowsReader(store::Connection& connection, const NodeView& view, Order order = Order::Listed);
  /// False when there are no more.
  bool next(ListRow& row);

 private:
  bool openNext();
  void start(const std::string& statement);

  store::Connection& connection_;
  const NodeView& view_;
  std::vector<std::int32_t> groups_;  // those to come, the next one last
  std::int64_t passed_ = 0;  // keys, of those up to the last, where they are read as they lie
  std::int64_t last_ = 0;
  store::Recordset rows_;
  std::vector<int> cells_;  // where the columns stand in the statement
  int key_ = -1;
  int group_ = -1;
  int annulled_ = -1;
};

/// The rows of these keys that are in the list, in its order.
std::vector<ListRow> readRows(store::Connection& connection, const NodeView& view,
                              const std::vector<std::int32_t>& keys);

}  // namespace fidaleon::app
