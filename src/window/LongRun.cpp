#include "window/LongRun.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <limits>

#include "paper/Error.h"

namespace fidaleon::app {
namespace {

using namespace std::chrono_literals;
using Steady = std::chrono::steady_clock;

constexpr auto QUIET = 150ms;  // work that ends within this time is not spoken of
constexpr auto LOOK = 40ms;

}  // namespace

class LongRun::Dialog : public QProgressDialog {
 public:
  Dialog(QWidget* over, const QString& what)
      : QProgressDialog(what, QObject::tr("&Cancelar"), 0, 1000, over) {
    setWindowModality(Qt::ApplicationModal);
    // Never by itself: it would come up over a dialog that the work has opened, and bar the way.
    setMinimumDuration(std::numeric_limits<int>::max());
    setValue(0);  // only this stops the clock that was started before
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    setAutoReset(false);
    setAutoClose(false);
  }
};

LongRun::LongRun() = default;
LongRun::~LongRun() = default;

bool LongRun::run(QWidget* over, const QString& what, const std::function<void()>& work) {
  struct Ended {
    std::unique_ptr<Dialog>& dialog;
    ~Ended() { dialog.reset(); }
  };
  dialog_ = std::make_unique<Dialog>(over, what);
  const Ended ended{dialog_};
  looked_ = Steady::now() + QUIET - LOOK;
  try {
    work();
  } catch (const paper::Error& e) {
    if (e.kind() != paper::ErrorKind::Cancelled) throw;
    return false;
  }
  return true;
}

bool LongRun::tell(std::size_t done, std::size_t total) {
  if (!dialog_) return true;
  if (Steady::now() - looked_ > LOOK) {
    dialog_->setMaximum(static_cast<int>(total));
    dialog_->setValue(static_cast<int>(done));
    if (!dialog_->isVisible() && !dialog_->wasCanceled()) dialog_->show();
    QCoreApplication::processEvents();
    looked_ = Steady::now();
  }
  return !dialog_->wasCanceled();
}

}  // namespace fidaleon::app
