#pragma once

#include <QString>
#include <cstddef>
#include <functional>
#include <memory>

class QProgressDialog;
class QWidget;

namespace fidaleon::app {

/// Tells the user how far the work on a report has come, once it takes a while, and lets them stop
/// it.
class LongRun {
 public:
  LongRun();
  ~LongRun();
  LongRun(const LongRun&) = delete;
  LongRun& operator=(const LongRun&) = delete;

  /// Does the work over that window. False when the user stopped it; what else went wrong is
  /// thrown on. Not to be called from within the work.
  bool run(QWidget* over, const QString& what, const std::function<void()>& work);
  /// For ReportOptions::progress; false once the user has asked to stop. Without work under way it
  /// says true and shows nothing.
  bool tell(std::size_t done, std::size_t total);
  bool isRunning() const { return dialog_ != nullptr; }

 private:
  std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace fidaleon::app
