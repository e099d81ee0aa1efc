#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <memory>
#include <string_view>
#include <vector>

#include "store/Plan.h"

namespace fidaleon::store {

class RecordsetState;

/// The record sets of a connection that still step a statement.
class OpenRecordsets {
 public:
  void add(RecordsetState& set) { sets_.push_back(&set); }
  void remove(RecordsetState& set);
  /// Fetches what they have left.
  void drain();
  /// They keep the rows fetched so far and nothing else.
  void abandon();

 private:
  std::vector<RecordsetState*> sets_;
};

/// What an open record set needs to find its last row without the others.
struct WayBack {
  WayBack(Engine& e, const std::vector<Literal>& values);
  Engine& engine;
  std::deque<std::string> texts;
  std::vector<Literal> values;
};

/// The rows fetched so far, where one stands in them, and the statement that has the others.
class RecordsetState {
 public:
  RecordsetState(std::shared_ptr<Plan> plan, std::unique_ptr<Statement> statement,
                 OpenRecordsets& open);
  ~RecordsetState();
  RecordsetState(const RecordsetState&) = delete;
  RecordsetState& operator=(const RecordsetState&) = delete;

  bool atEnd();
  bool atBegin();
  std::int64_t count();
  void moveTo(std::int64_t row);
  /// Without fetching the others, where the statement has an order that an index knows.
  void moveLast();
  std::int64_t position();
  /// Keeps what the statement was bound to, unless all rows are fetched.
  void keepWayBack(Engine& engine, const std::vector<Literal>& values);

  int columnCount() const { return static_cast<int>(plan_->columns().size()); }
  const Plan::ResultColumn& column(int position) const;
  /// Throws UnknownName.
  int find(std::string_view name) {
    const auto& columns = plan_->columns();
    // Only a name that no earlier column has is surely the expected one.
    if (expected_ < columns.size() && columns[expected_].first && columns[expected_].name == name)
      return static_cast<int>(expected_++);
    return search(name);
  }
  Value value(int column) {
    const Here here = current(column);
    return here.rows.at(here.row, column);
  }
  std::string text(int column) {
    const Here here = current(column);
    return here.rows.text(here.row, column);
  }
  std::int64_t integer(int column) {
    const Here here = current(column);
    return here.rows.integer(here.row, column);
  }

  /// Fetches until there are `rows` rows or no more; true when there are as many.
  bool fetch(std::int64_t rows) { return rows_.rows() >= rows || step(rows); }
  void drain();
  void abandon();

 private:
  struct Here {
    const RowStore& rows;
    std::int64_t row;
  };
  /// The current row, once it is sure that it has this cell.
  Here current(int column) {
    if (column >= 0 && column < columnCount() && position_ >= 0 && rows_.rows() > position_)
      return {rows_, position_};
    return reached(column);
  }
  Here reached(int column);
  bool readLast();
  /// On the last row, of which no more is known yet.
  bool onLast() const { return last_ != nullptr; }
  void settle();
  bool step(std::int64_t rows);
  int search(std::string_view name);
  void finish();
  bool matches(int position, std::string_view name) const;

  std::shared_ptr<Plan> plan_;
  std::unique_ptr<Statement> statement_;  // null when all rows are fetched
  OpenRecordsets& open_;
  RowStore rows_;
  std::unique_ptr<WayBack> back_;
  std::unique_ptr<RowStore> last_;  // while one stands on it and the others are not fetched
  std::int64_t position_ = 0;       // -1 before the first row, the count behind the last
  std::size_t expected_ = 0;        // callers mostly read the columns in order
  std::exception_ptr failure_;
};

}  // namespace fidaleon::store
