#pragma once

#include "qt/views/TextView.h"

class QPlainTextEdit;

namespace fidaleon::qt {

/// Texts of up to this many lines keep their height.
inline constexpr int MEMO_FIXED_UP_TO = 3;

/// A field of several lines. Tab leaves it.
class MemoView : public TextView {
 public:
  MemoView(forms::TextBox& box, QWidget* parent);
  QWidget* widget() const override;

 protected:
  bool keyPressed(QKeyEvent& event) override;
  std::string shownText() const override;
  void showText(const std::string& text, bool undoable) override;
  void insertText(const QString& text) override;
  std::pair<int, int> shownSelection() const override;
  void showSelection(int start, int length) override;
  void showLocked() override;

 private:
  int heightOf(int lines) const;
  void grow();

  QPlainTextEdit* edit_;
};

}  // namespace fidaleon::qt
