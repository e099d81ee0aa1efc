#include "qt/views/ListModel.h"

#include "qt/Text.h"

namespace fidaleon::qt {

void ListModel::reread() {
  beginResetModel();
  rows_ = list_.listCount();
  endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= list_.listCount()) return {};
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
    return toQt(list_.list(index.row()));
  return {};
}

}  // namespace fidaleon::qt
