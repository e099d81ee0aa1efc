#pragma once

#include "qt/views/OfferList.h"
#include "qt/views/TextView.h"

class QLineEdit;

namespace fidaleon::qt {

/// A field of one line.
class LineView : public TextView {
 public:
  LineView(forms::TextBox& box, QWidget* parent);
  QWidget* widget() const override;
  QWidget* focusWidget() const override;
  void fixWidth(int letters) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  bool keyPressed(QKeyEvent& event) override;
  QLineEdit* edit() const { return edit_; }
  std::string shownText() const override;
  void showText(const std::string& text, bool undoable) override;
  void insertText(const QString& text) override;
  std::pair<int, int> shownSelection() const override;
  void showSelection(int start, int length) override;
  void showLocked() override;
  void showDoubt() override;

 private:
  void offer();

  QLineEdit* edit_;
  OfferList offers_;
};

}  // namespace fidaleon::qt
