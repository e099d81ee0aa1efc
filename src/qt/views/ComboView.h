#pragma once

#include "qt/views/ListView.h"

class QComboBox;
class QStyle;

namespace fidaleon::qt {

/// A drop-down list; empty when no line is chosen.
class ComboView : public ListView {
 public:
  ComboView(forms::ComboBox& list, QWidget* parent);
  ~ComboView() override;
  QWidget* widget() const override;
  void fixWidth(int letters) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  bool keyPressed(QKeyEvent& event) override;
  void showSelection() override;
  void showLocked() override;

 private:
  QComboBox* combo_;
};

}  // namespace fidaleon::qt
