#pragma once

#include <QAbstractListModel>

#include "forms/Controls.h"

namespace fidaleon::qt {

/// The lines of a list, read straight from the control. Announces lines only as of the last
/// reread(), so that filling a list of thousands costs one notice.
class ListModel : public QAbstractListModel {
 public:
  explicit ListModel(const forms::ListControl& list) : list_(list) {}
  void reread();
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const forms::ListControl& list_;
  int rows_ = 0;
};

}  // namespace fidaleon::qt
