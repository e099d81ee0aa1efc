#include "qt/ProgressDialog.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "qt/Appearance.h"

namespace fidaleon::qt {

namespace {

constexpr int STEPS = 1000;
constexpr int BETWEEN_PAINTS_MS = 40;

}  // namespace

ProgressDialog::ProgressDialog(std::int64_t count, const QString& message, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      count_(count),
      bar_(new QProgressBar(this)) {
  setWindowTitle(QGuiApplication::applicationDisplayName());
  setModal(true);
  auto* text = new QLabel(message, this);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  bar_->setRange(0, STEPS);
  bar_->setMinimumWidth(charsWidth(*this, 40));
  auto* column = new QVBoxLayout(this);
  column->addWidget(text);
  column->addWidget(bar_);
  show();
  moveTo(0);
}

void ProgressDialog::moveTo(std::int64_t position) {
  const double share = count_ > 0 ? static_cast<double>(position) / static_cast<double>(count_) : 0;
  bar_->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * STEPS));
  if (sincePainted_.isValid() && sincePainted_.elapsed() < BETWEEN_PAINTS_MS) return;
  sincePainted_.start();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace fidaleon::qt
