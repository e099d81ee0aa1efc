#pragma once

#include <QAbstractTableModel>
#include <cstdint>
#include <string>
#include <vector>

#include "catalogue/NodeView.h"
#include "store/Connection.h"

namespace fidaleon::app {

/// The rows of one node, as they stood when they were loaded.
class RowsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role { KeyRole = Qt::UserRole, AnnulledRole, SearchRole };

  using QAbstractTableModel::QAbstractTableModel;

  /// Runs the node's statement; a folder gives no rows. Throws store::Error and keeps what it
  /// showed before.
  void load(store::Connection& connection, const NodeView& view);
  const NodeView* view() const { return view_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  std::int32_t key(int row) const { return rows_[static_cast<std::size_t>(row)].key; }
  /// What the rows of one book have in common; 0 where rows belong to none.
  std::int32_t group(int row) const { return rows_[static_cast<std::size_t>(row)].group; }
  bool annulled(int row) const { return rows_[static_cast<std::size_t>(row)].annulled; }
  std::vector<std::int32_t> keys() const;
  /// The row of that key, or -1.
  int rowOf(std::int32_t key) const;
  /// The first row of the earliest day that is not before `day` ("yyyymmdd"), or -1: when there is
  /// none, or the node's list does not open at a day.
  int nextFrom(const std::string& day) const;
  /// As the table holds it.
  const std::string& stored(int row, int column) const;
  /// Where the row comes when that column is sorted; rows that are equal there have the same.
  int place(int row, int column) const;
  /// What the row shows, folded for the filter.
  const std::string& searchKey(int row) const;

 private:
  struct Row {
    std::int32_t key = 0;
    std::int32_t group = 0;
    bool annulled = false;
  };
  struct Content {
    std::vector<Row> rows;
    std::vector<std::string> cells;  // of all rows, one after the other
  };
  static Content read(store::Connection& connection, const NodeView& view);
  QVariant appearance(const Row& row, int column, int role) const;
  std::string shown(int row, int column) const;
  std::vector<int> places(int column) const;
  void makeSearchKeys() const;

  const NodeView* view_ = nullptr;
  std::vector<Row> rows_;
  std::vector<std::string> cells_;
  // Made when they are first asked for, for all rows at once.
  mutable std::vector<std::string> search_;
  mutable std::vector<std::vector<int>> places_;  // by column
};

}  // namespace fidaleon::app
