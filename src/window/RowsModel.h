#pragma once

#include <QAbstractTableModel>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/NodeView.h"
#include "store/Connection.h"
#include "store/Progress.h"
#include "window/RowsReader.h"

namespace fidaleon::app {

/// The rows of one node, as they stood when they were read. A long list is read in slices: the
/// first rows are there at once, and whoever shows them has the rest read.
class RowsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role { KeyRole = Qt::UserRole, AnnulledRole };
  using Time = std::chrono::milliseconds;
  static constexpr Time WHATEVER_IT_TAKES = std::chrono::hours(24);
  enum class Reading {
    More,     // there are rows to come
    Renewed,  // what was read in place of the rows is whole; takeOver() shows it
    Whole,
  };

  using QAbstractTableModel::QAbstractTableModel;
  ~RowsModel() override;

  /// Runs the node's statement; a folder gives no rows. Throws store::Error and keeps what it
  /// showed before.
  void load(store::Connection& connection, const NodeView& view);
  /// The same, but reads no longer than about that time. The view must stay.
  Reading begin(store::Connection& connection, const NodeView& view, Time atMost);
  /// Reads the rows anew, for now unseen: those that are shown stay.
  Reading renew(store::Connection& connection, Time atMost);
  Reading readOn(Time atMost);
  void takeOver();
  /// Reads no more; what is shown stays as it is. False when there was nothing left to read.
  bool stop();
  /// Shows nothing, of no node.
  void clear();
  /// Nothing is being read.
  bool isRead() const { return !reader_ && !ordering_.valid(); }
  /// All there is to show is shown: nothing was broken off.
  bool isWhole() const { return isRead() && !partial_; }
  /// There are rows to come behind those that are shown.
  bool isFilling() const { return !isRead() && partial_; }

  /// What has become of rows that were touched.
  struct Update {
    bool placed = true;  // false: where one of them belongs is not known, the list is to be renewed
    std::int32_t added = 0;  // the highest key that is new
  };
  /// Reads the rows of these keys again. Throws store::Error.
  Update update(store::Connection& connection, const std::vector<std::int32_t>& keys);

  const NodeView* view() const { return view_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  std::int32_t key(int row) const { return rows_.key(row); }
  /// What the rows of one book have in common; 0 where rows belong to none.
  std::int32_t group(int row) const { return rows_.group(row); }
  bool annulled(int row) const { return rows_.annulled(row); }
  const std::vector<std::int32_t>& keys() const { return rows_.keys(); }
  /// The row of that key, or -1.
  int rowOf(std::int32_t key) const { return rows_.rowOf(key); }
  /// The first row of the earliest day that is not before `day` ("yyyymmdd"), or -1: when there is
  /// none, or the node's list does not open at a day.
  int nextFrom(const std::string& day) const;
  /// As the table holds it. Until the next rows are read.
  std::string_view stored(int row, int column) const { return rows_.text(row, column); }
  /// As the list shows it.
  std::string shown(int row, int column) const;
  /// Whether that row comes before the other when the column is sorted.
  bool isBefore(int row, int other, int column) const;
  /// Of each row, from 0 on, where it comes then; those that are alike have the same rank. Throws
  /// store::Error(Cancelled) when `progress` says so.
  std::vector<int> ranks(int column, const store::Progress& progress = {}) const;
  /// The row shows that word, folded for the filter, in one of its columns. `known` remembers for
  /// this word what has been found out; empty at first.
  using Known = std::vector<std::vector<bool>>;
  bool holds(int row, const std::string& word, Known& known) const;

 private:
  int columnOf(const std::string& field) const;
  Reading read(SlimRows& rows, Time atMost);
  QVariant appearance(int row, int column, int role) const;
  std::string shown(std::string_view stored, int column) const;
  const std::vector<int>& ranksOfTexts(int column, const store::Progress& progress = {}) const;
  void startAnew(store::Connection& connection);
  Reading putInOrder(Time atMost);
  bool giveUpOrdering();
  ColumnKind kind(int column) const {
    return view_->columns[static_cast<std::size_t>(column)].kind;
  }
  std::vector<bool> holding(int column, const std::string& word) const;
  int compared(const ListRow& row, int other) const;
  bool insert(const ListRow& row);
  void remove(int row);

  const NodeView* view_ = nullptr;
  SlimRows rows_;
  int count_ = 0;  // of those that are shown
  std::unique_ptr<RowsReader> reader_;
  std::optional<SlimRows> coming_;
  // Those that come unseen, while they are brought into their order beside this thread.
  std::future<SlimRows> ordering_;
  std::shared_ptr<std::atomic<bool>> wanted_;
  bool partial_ = false;  // there are more than those that are shown
  // Where each text of a column comes in its order; made when it is first asked for.
  mutable std::vector<std::vector<int>> ranks_;
};

}  // namespace fidaleon::app
