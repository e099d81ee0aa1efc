#pragma once

#include <QSortFilterProxyModel>
#include <cstdint>
#include <string>
#include <vector>

#include "window/RowsModel.h"

namespace fidaleon::app {

/// Sorts and filters the rows of a RowsModel. A row stays when it holds every word of the filter,
/// in any column and order, whatever the case and the accents. Rows that are still being read come
/// in the order of the list; they are sorted once all are there.
class RowsFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;
  void setSourceModel(QAbstractItemModel* rows) override;
  void setText(const QString& text);
  /// Keeps only the rows of that group; 0 keeps those of all.
  void setGroup(std::int32_t group);
  std::int32_t group() const { return group_; }
  const RowsModel& rows() const { return *static_cast<const RowsModel*>(sourceModel()); }
  /// -1 for the order of the list.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
  /// Brings the rows into the order that was asked for. True when that moves them.
  bool sortIfRead();

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  struct Word {
    std::string text;
    RowsModel::Known known = {};
  };
  mutable std::vector<Word> words_;
  std::int32_t group_ = 0;
  int column_ = -1;
  Qt::SortOrder order_ = Qt::AscendingOrder;
};

}  // namespace fidaleon::app
