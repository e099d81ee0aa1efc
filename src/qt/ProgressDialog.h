#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <cstdint>

class QLabel;
class QProgressBar;
class QPushButton;

namespace fidaleon::qt {

/// How far long work has come, and a way to stop it. Shuts the windows below.
class ProgressDialog : public QDialog {
 public:
  ProgressDialog(std::int64_t count, const QString& message, QWidget* parent);
  void moveTo(std::int64_t position);
  /// The user has asked to stop.
  bool cancelled() const { return cancelled_; }
  /// Escape and the button ask to stop; the dialog goes when the work has ended.
  void reject() override;

 private:
  std::int64_t count_;
  QLabel* text_;
  QProgressBar* bar_;
  QPushButton* stop_;
  bool cancelled_ = false;
  QElapsedTimer sincePainted_;
};

}  // namespace fidaleon::qt
