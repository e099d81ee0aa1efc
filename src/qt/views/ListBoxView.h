#pragma once

#include "qt/views/ListView.h"

class QListView;
class QModelIndex;

namespace fidaleon::qt {

/// An open list, with one line chosen or several selected.
class ListBoxView : public ListView {
 public:
  ListBoxView(forms::ListBox& list, QWidget* parent);
  QWidget* widget() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void showSelection() override;
  void showLocked() override;

 private:
  void rowEntered(int row);
  void clicked(int row);
  void takeSelection();

  forms::ListBox& box_;
  QListView* view_;
  bool taking_ = false;  // what the user has marked is on its way to the list
  int entered_ = -1;     // the row whose choice this click has already told
};

}  // namespace fidaleon::qt
