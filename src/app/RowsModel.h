#pragma once

#include <QAbstractTableModel>
#include <cstdint>
#include <string>
#include <vector>

#include "app/NodeView.h"
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
  /// As the table holds it: what sorting goes by.
  const std::string& stored(int row, int column) const;
  /// What the row shows, folded for the filter.
  const std::string& searchKey(int row) const;

 private:
  struct Row {
    std::int32_t key = 0;
    std::int32_t group = 0;
    bool annulled = false;
    std::vector<std::string> stored;
    mutable std::string search;
  };
  QVariant appearance(const Row& row, int column, int role) const;
  std::string shown(const Row& row, int column) const;

  const NodeView* view_ = nullptr;
  std::vector<Row> rows_;
};

}  // namespace fidaleon::app
