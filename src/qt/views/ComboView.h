#pragma once

#include <memory>

#include "qt/views/ListView.h"
#include "qt/views/OfferList.h"

class QComboBox;
class QFocusEvent;
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
  void look(const QString& typed);
  void left(const QFocusEvent& event);
  void take(const forms::Offer& offer);
  bool looksFor(QKeyEvent& event);

  QComboBox* combo_;
  std::unique_ptr<OfferList> offers_;
  QString typed_;  // of what is looked for among the offers
};

}  // namespace fidaleon::qt
