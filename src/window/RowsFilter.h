#pragma once

#include <QAbstractProxyModel>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "store/Progress.h"
#include "window/RowsModel.h"

namespace fidaleon::app {

/// Sorts and filters the rows of a RowsModel. A row stays when it holds every word of the filter,
/// in any column and order, whatever the case and the accents. Rows that are still being read come
/// in the order of the list; they are sorted once all are there. Rows that are alike keep the order
/// of the list.
class RowsFilter : public QAbstractProxyModel {
  Q_OBJECT

 public:
  using QAbstractProxyModel::QAbstractProxyModel;
  /// A RowsModel.
  void setSourceModel(QAbstractItemModel* rows) override;
  void setText(const QString& text);
  /// Keeps only the rows of that group; 0 keeps those of all.
  void setGroup(std::int32_t group);
  std::int32_t group() const { return group_; }
  const RowsModel& rows() const { return *static_cast<const RowsModel*>(sourceModel()); }
  /// Does long work while the window lives; false when the user has given it up.
  using Beside = std::function<bool(const std::function<void(const store::Progress&)>&)>;
  /// For the order of a long list.
  void setBeside(Beside beside) { beside_ = std::move(beside); }
  /// -1 for the order of the list. Given up it is as it was, and sortGivenUp() tells.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
  /// Brings the rows into the order that was asked for. True when that moves them.
  bool sortIfRead();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  QModelIndex mapToSource(const QModelIndex& shown) const override;
  QModelIndex mapFromSource(const QModelIndex& source) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 signals:
  void sortGivenUp(int column, Qt::SortOrder order);

 private:
  struct Word {
    std::string text;
    RowsModel::Known known = {};
  };
  bool accepts(int row) const;
  bool isBefore(int row, int other) const;
  /// The rows that are shown, as they are to stand.
  std::vector<int> chosen(const store::Progress& progress) const;
  std::vector<int> inOrder(const std::vector<int>& rows, const store::Progress& progress) const;
  void take(std::vector<int> shown);
  void number();
  void arrange() { arrange(chosen({})); }
  void arrange(std::vector<int> shown);
  bool isLong() const;
  void show(int row);
  void hide(int row);
  void rowsCame(int first, int last);
  void rowsWent(int first, int last);
  void rowsChanged(int first, int last);

  mutable std::vector<Word> words_;
  std::int32_t group_ = 0;
  Beside beside_;
  int column_ = -1;  // as asked for
  Qt::SortOrder order_ = Qt::AscendingOrder;
  int sorted_ = -1;         // the column by which they stand, or -1
  std::vector<int> shown_;  // rows of the source, in the order in which they are shown
  std::vector<int> place_;  // of each row of the source among those, or -1
};

}  // namespace fidaleon::app
