#include "qt/ProgressDialog.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
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
      text_(new QLabel(message, this)),
      bar_(new QProgressBar(this)),
      stop_(new QPushButton(QStringLiteral("&Cancelar"), this)) {
  setWindowTitle(QGuiApplication::applicationDisplayName());
  setModal(true);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  bar_->setRange(0, STEPS);
  bar_->setMinimumWidth(charsWidth(*this, 40));
  auto* column = new QVBoxLayout(this);
  column->addWidget(text_);
  column->addWidget(bar_);
  column->addWidget(stop_, 0, Qt::AlignRight);
  // The Enter key that started the work, held too long, must not stop it.
  stop_->setAutoDefault(false);
  setFocusPolicy(Qt::StrongFocus);
  setFocus();
  connect(stop_, &QPushButton::clicked, this, [this] { reject(); });
  show();
  moveTo(0);
}

void ProgressDialog::reject() {
  cancelled_ = true;
  stop_->setEnabled(false);
  text_->setText(QStringLiteral("Cancelando…"));
}

void ProgressDialog::moveTo(std::int64_t position) {
  const double share = count_ > 0 ? static_cast<double>(position) / static_cast<double>(count_) : 0;
  bar_->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * STEPS));
  if (sincePainted_.isValid() && sincePainted_.elapsed() < BETWEEN_PAINTS_MS) return;
  sincePainted_.start();
  // The dialog is modal: what the user does can only reach its own button.
  QCoreApplication::processEvents();
}

}  // namespace fidaleon::qt
