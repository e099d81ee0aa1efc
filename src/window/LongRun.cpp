#include "window/LongRun.h"

#include <QProgressDialog>
#include <QPushButton>

#include "paper/Error.h"

namespace fidaleon::app {
namespace {

constexpr int QUIET_MS = 400;  // work that ends within this time is not spoken of

class Ended {
 public:
  explicit Ended(std::unique_ptr<QProgressDialog>& dialog) : dialog_(dialog) {}
  ~Ended() { dialog_.reset(); }

 private:
  std::unique_ptr<QProgressDialog>& dialog_;
};

}  // namespace

LongRun::LongRun() = default;
LongRun::~LongRun() = default;

bool LongRun::run(QWidget* over, const QString& what, const std::function<void()>& work) {
  dialog_ = std::make_unique<QProgressDialog>(what, QObject::tr("&Cancelar"), 0, 0, over);
  const Ended ended(dialog_);
  dialog_->setWindowModality(Qt::WindowModal);
  dialog_->setAutoReset(false);
  dialog_->setAutoClose(false);
  dialog_->setMinimumDuration(QUIET_MS);
  dialog_->setMinimumWidth(dialog_->fontMetrics().averageCharWidth() * 50);
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
  dialog_->setMaximum(static_cast<int>(total));
  dialog_->setValue(static_cast<int>(done));
  return !dialog_->wasCanceled();
}

}  // namespace fidaleon::app
