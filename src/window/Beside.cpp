#include "window/Beside.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <future>
#include <mutex>
#include <thread>

#include "store/Error.h"

namespace fidaleon::app {
namespace {

using namespace std::chrono_literals;

constexpr auto QUIET = 150ms;  // work that ends within this time is not spoken of
constexpr auto LOOK = 40ms;

/// Escape and the window's own cross count as its button, and do nothing where there is none.
class Dialog : public QProgressDialog {
 public:
  Dialog(QWidget* over, const QString& what, MayCancel mayCancel, int steps)
      : QProgressDialog(what, QString(), 0, steps, over), button_(nullptr) {
    if (mayCancel == MayCancel::Yes) {
      button_ = new QPushButton(QObject::tr("&Cancelar"), this);
      setCancelButton(button_);
    }
    setWindowModality(Qt::ApplicationModal);
    setMinimumDuration(0);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    setAutoReset(false);
    setAutoClose(false);
  }
  void reject() override {
    if (button_) button_->click();
  }
  void closeEvent(QCloseEvent* event) override;

 private:
  QPushButton* button_;
};

void Dialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  reject();
}

/// Looks now and then, and ends when `look` says so.
void showUntil(Dialog& dialog, const std::function<bool()>& look) {
  QEventLoop loop;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
    if (look()) loop.quit();
  });
  timer.start(LOOK);
  dialog.show();
  loop.exec();
}

bool hasEnded(const std::future<void>& work) {
  return work.wait_for(0ms) == std::future_status::ready;
}

/// Work that goes on without anybody. Outlives all that a program takes down at its end.
struct Forgotten {
  std::mutex alone;
  std::condition_variable fewer;
  int count = 0;
};

Forgotten& forgotten() {
  static auto* const all = new Forgotten;
  return *all;
}

class Counted {
 public:
  Counted() {
    const std::lock_guard guard(forgotten().alone);
    ++forgotten().count;
  }
  ~Counted() {
    const std::lock_guard guard(forgotten().alone);
    --forgotten().count;
    forgotten().fewer.notify_all();
  }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
};

}  // namespace

void runBeside(QWidget* over, const QString& what, MayCancel mayCancel,
               const std::function<void(const store::Progress&)>& work,
               const std::function<QString()>& now) {
  std::atomic<int> done = 0;
  std::atomic<bool> wanted = true;
  const store::Progress progress = [&](int thousandths) {
    if (thousandths > done) done = thousandths;
    return wanted.load();
  };
  std::future<void> ended = std::async(std::launch::async, [&] { work(progress); });
  if (ended.wait_for(QUIET) != std::future_status::ready) {
    Dialog dialog(over, what, mayCancel, 0);  // how much there is to do may never be told
    showUntil(dialog, [&] {
      if (done > 0) dialog.setMaximum(1000);
      if (done > 0) dialog.setValue(done);
      if (const QString words = now ? now() : QString(); !words.isEmpty())
        dialog.setLabelText(words);
      if (dialog.wasCanceled()) wanted = false;
      return hasEnded(ended);
    });
  }
  ended.get();
}

void runForgettable(QWidget* over, const QString& what, std::function<void()> work) {
  auto task = std::make_shared<std::packaged_task<void()>>(std::move(work));
  std::future<void> ended = task->get_future();
  std::thread([task = std::move(task), counted = std::make_shared<Counted>()]() mutable {
    (*task)();
    task.reset();
  }).detach();
  if (ended.wait_for(QUIET) != std::future_status::ready) {
    Dialog dialog(over, what, MayCancel::Yes, 0);
    showUntil(dialog, [&] { return dialog.wasCanceled() || hasEnded(ended); });
    if (!hasEnded(ended)) throw store::Error(store::ErrorKind::Cancelled, "Se ha cancelado.");
  }
  ended.get();
}

void awaitForgotten() {
  std::unique_lock guard(forgotten().alone);
  forgotten().fewer.wait(guard, [] { return forgotten().count == 0; });
}

}  // namespace fidaleon::app
