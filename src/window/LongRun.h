#pragma once

#include <QString>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

class QWidget;

namespace fidaleon::app {

/// Long work over a window: once it takes a while the user is told how far it has come and can stop
/// it, and nothing else can be done meanwhile.
class LongRun {
 public:
  LongRun();
  ~LongRun();
  LongRun(const LongRun&) = delete;
  LongRun& operator=(const LongRun&) = delete;

  /// Does the work over that window, on this thread: it calls tell(). False when the user stopped
  /// it; what else went wrong is thrown on. Not to be called from within the work.
  bool run(QWidget* over, const QString& what, const std::function<void()>& work);
  /// For ReportOptions::progress; false once the user has asked to stop. A total of 0 is one that
  /// nobody knows. Without work under way it says true and shows nothing.
  bool tell(std::size_t done, std::size_t total);
  bool isRunning() const { return dialog_ != nullptr; }

 private:
  class Dialog;
  std::unique_ptr<Dialog> dialog_;
  std::chrono::steady_clock::time_point looked_;
};

}  // namespace fidaleon::app
