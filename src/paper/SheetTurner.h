#pragma once

#include <semaphore>
#include <stop_token>
#include <thread>

class QPdfWriter;

namespace fidaleon::paper {

/// Ends a sheet of a PDF (compresses and writes it) on a thread of its own, while the next one is
/// laid out. Between turn() and wait() nobody else may touch the writer or its painter.
class SheetTurner {
 public:
  /// The writer must outlive the turner.
  explicit SheetTurner(QPdfWriter& writer);
  ~SheetTurner();

  /// Begins a new sheet. Not while one is being turned.
  void turn();
  /// Until the sheet is turned; at once when none is.
  void wait();

 private:
  void work(const std::stop_token& ending);

  QPdfWriter& writer_;
  bool turning_ = false;
  std::binary_semaphore asked_{0};
  std::binary_semaphore turned_{0};
  std::jthread thread_;
};

}  // namespace fidaleon::paper
