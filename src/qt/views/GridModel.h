#pragma once

#include <QAbstractTableModel>

#include "forms/Controls.h"

namespace fidaleon::qt {

/// The rows of a grid, read straight from the control; announces them as of the last reread().
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const forms::Grid& grid) : grid_(grid) {}
  void reread();
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const forms::Grid& grid_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace fidaleon::qt
