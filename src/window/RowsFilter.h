#pragma once

#include <QSortFilterProxyModel>
#include <cstdint>
#include <string>
#include <vector>

#include "window/RowsModel.h"

namespace fidaleon::app {

/// Sorts and filters the rows of a RowsModel. A row stays when it holds every word of the filter,
/// in any column and order, whatever the case and the accents.
class RowsFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;
  void setText(const QString& text);
  /// Keeps only the rows of that group; 0 keeps those of all.
  void setGroup(std::int32_t group);
  std::int32_t group() const { return group_; }
  const RowsModel& rows() const { return *static_cast<const RowsModel*>(sourceModel()); }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  std::vector<std::string> words_;
  std::int32_t group_ = 0;
};

}  // namespace fidaleon::app
