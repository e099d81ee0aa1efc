#pragma once
// Controls that are only looked at.

#include "qt/views/ControlView.h"

class QGroupBox;
class QLabel;
class QProgressBar;

namespace fidaleon::qt {

class LabelView : public ControlView {
 public:
  LabelView(forms::Label& label, QWidget* parent);
  QWidget* widget() const override;
  void showCaption() override;
  /// The field that the label names, and which takes the focus by the label's letter.
  void setBuddy(const forms::Control& control, QWidget* field);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  forms::Label& model_;
  QLabel* label_;
  const forms::Control* named_ = nullptr;
};

class FrameView : public ControlView {
 public:
  FrameView(forms::Frame& frame, QWidget* parent);
  QWidget* widget() const override;
  void showCaption() override;

 private:
  forms::Frame& model_;
  QGroupBox* box_;
};

class ProgressView : public ControlView {
 public:
  ProgressView(forms::Progress& progress, QWidget* parent);
  QWidget* widget() const override;
  void refresh(forms::Change what) override;

 private:
  forms::Progress& model_;
  QWidget* both_;
  QLabel* message_;
  QProgressBar* bar_;
};

}  // namespace fidaleon::qt
