#include "window/Beside.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <exception>
#include <future>

namespace fidaleon::app {
namespace {

using namespace std::chrono_literals;

constexpr auto QUIET = 150ms;  // work that ends within this time is not spoken of
constexpr auto LOOK = 40ms;

/// Escape and the window's own cross count as its button, and do nothing where there is none.
class Dialog : public QProgressDialog {
 public:
  Dialog(QWidget* over, const QString& what, MayCancel mayCancel)
      : QProgressDialog(what, QString(), 0, 1000, over), button_(nullptr) {
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

void showWhile(const std::future<void>& work, const std::atomic<int>& done,
               std::atomic<bool>& wanted, Dialog& dialog) {
  QEventLoop loop;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
    dialog.setValue(done);
    if (dialog.wasCanceled()) wanted = false;
    if (work.wait_for(0ms) == std::future_status::ready) loop.quit();
  });
  timer.start(LOOK);
  dialog.show();
  loop.exec();
}

}  // namespace

void runBeside(QWidget* over, const QString& what, MayCancel mayCancel,
               const std::function<void(const store::Progress&)>& work) {
  std::atomic<int> done = 0;
  std::atomic<bool> wanted = true;
  const store::Progress progress = [&](int thousandths) {
    if (thousandths > done) done = thousandths;
    return wanted.load();
  };
  std::future<void> ended = std::async(std::launch::async, [&] { work(progress); });
  if (ended.wait_for(QUIET) != std::future_status::ready) {
    Dialog dialog(over, what, mayCancel);
    showWhile(ended, done, wanted, dialog);
  }
  ended.get();
}

}  // namespace fidaleon::app
