#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <cstdint>

class QProgressBar;

namespace fidaleon::qt {

/// How far long work has come. Cannot be closed by the user; shuts the windows below.
class ProgressDialog : public QDialog {
 public:
  ProgressDialog(std::int64_t count, const QString& message, QWidget* parent);
  void moveTo(std::int64_t position);
  void reject() override {}

 private:
  std::int64_t count_;
  QProgressBar* bar_;
  QElapsedTimer sincePainted_;
};

}  // namespace fidaleon::qt
