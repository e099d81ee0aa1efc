#pragma once

#include <QTimer>

#include "qt/views/ControlView.h"
#include "qt/views/GridModel.h"

class QTableView;

namespace fidaleon::qt {

/// A table of rows. Widths that the user draws go back to the control, a width of 0 hides the
/// column.
class GridView : public ControlView {
 public:
  GridView(forms::Grid& grid, QWidget* parent);
  QWidget* widget() const override;
  void refresh(forms::Change what) override;
  void flush() override;

 protected:
  bool keyPressed(QKeyEvent& event) override;

 private:
  void showRow();
  void showWidths();
  void rowEntered(int row);
  void clicked(int row);
  void widthDrawn(int column, int pixels);
  int pixels(int twips) const;

  forms::Grid& grid_;
  GridModel model_;
  QTableView* table_;
  QTimer idle_;
  bool stale_ = false;
  bool showing_ = false;
};

}  // namespace fidaleon::qt
