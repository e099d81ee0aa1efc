#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <vector>

#include "search/Searcher.h"

namespace fidaleon::app {

/// What was found, for a list: of each hit its icon, its name and when; below, where it stands and
/// why it was found.
class FoundModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role { WhenRole = Qt::UserRole, WhereRole, WhyRole, AnnulledRole, ExactRole };
  using QAbstractListModel::QAbstractListModel;

  void show(std::vector<search::Hit> hits);
  const search::Hit& hit(int row) const { return hits_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<search::Hit> hits_;
};

/// A list of two lines to a hit. Null hit where none is chosen.
class FoundList : public QListView {
  Q_OBJECT

 public:
  explicit FoundList(QWidget* parent = nullptr);

  /// Chooses the first one.
  void show(std::vector<search::Hit> hits);
  const search::Hit* chosen() const;
  /// By so many rows, as far as there are any.
  void move(int rows);
  FoundModel& hits() { return model_; }
  int rowHeight() const;

 private:
  FoundModel model_;
};

}  // namespace fidaleon::app
