#include "paper/SheetTurner.h"

#include <QPdfWriter>
#include <utility>

namespace fidaleon::paper {

SheetTurner::SheetTurner(QPdfWriter& writer)
    : writer_(writer), thread_([this](const std::stop_token& ending) { work(ending); }) {}

SheetTurner::~SheetTurner() {
  wait();
  thread_.request_stop();
  asked_.release();
}

void SheetTurner::turn() {
  turning_ = true;
  asked_.release();
}

void SheetTurner::wait() {
  if (std::exchange(turning_, false)) turned_.acquire();
}

void SheetTurner::work(const std::stop_token& ending) {
  for (asked_.acquire(); !ending.stop_requested(); asked_.acquire()) {
    writer_.newPage();
    turned_.release();
  }
}

}  // namespace fidaleon::paper
