#pragma once

#include <cstdint>
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
  std::int64_t position() const { return position_; }

  int columnCount() const { return static_cast<int>(plan_->columns().size()); }
  const Plan::ResultColumn& column(int position) const;
  /// Throws UnknownName.
  int find(std::string_view name);
  Value value(int column) { return current(column).at(position_, column); }
  std::string text(int column) { return current(column).text(position_, column); }
  std::int64_t integer(int column) { return current(column).integer(position_, column); }

  /// Fetches until there are `rows` rows or no more; true when there are as many.
  bool fetch(std::int64_t rows);
  void drain();
  void abandon();

 private:
  /// The rows, once it is sure that they have this cell.
  const RowStore& current(int column);
  void finish();
  bool matches(int position, std::string_view name) const;

  std::shared_ptr<Plan> plan_;
  std::unique_ptr<Statement> statement_;  // null when all rows are fetched
  OpenRecordsets& open_;
  RowStore rows_;
  std::int64_t position_ = 0;  // -1 before the first row, the count behind the last
  int expected_ = 0;           // callers mostly read the columns in order
  std::exception_ptr failure_;
};

}  // namespace fidaleon::store
