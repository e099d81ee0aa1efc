#include "qt/views/GridModel.h"

#include "qt/Text.h"

namespace fidaleon::qt {

void GridModel::reread() {
  beginResetModel();
  rows_ = grid_.rowCount();
  columns_ = grid_.columns();
  endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  if (index.row() >= grid_.rowCount() || index.column() >= grid_.columns()) return {};
  return toQt(grid_.cell(index.row() + 1, index.column())).simplified();
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= grid_.columns()) return {};
  if (role == Qt::DisplayRole) return toQt(grid_.header(section));
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

}  // namespace fidaleon::qt
