#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

namespace fidaleon::tests {

/// Fails the test that waits on a window nobody answers, tells what stands in it, and closes it, so
/// that the others go on. Only time in which the program waits for the user counts.
class Watchdog {
 public:
  static constexpr int PATIENCE_MS = 5000;

  explicit Watchdog(int patience = PATIENCE_MS) {
    timer_.setInterval(patience / LOOKS);
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start();
  }

 private:
  static constexpr int LOOKS = 20;

  void look() {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* waiting = popup ? popup : QApplication::activeModalWidget();
    if (waiting != seen_) looks_ = 0;
    seen_ = waiting;
    if (!waiting || ++looks_ < LOOKS) return;
    looks_ = 0;
    ADD_FAILURE() << "nobody answers " << waiting->metaObject()->className() << " «"
                  << waiting->windowTitle().toStdString() << "»: " << textOf(*waiting);
    // A form may ask before it closes, or refuse to.
    if (auto* dialog = qobject_cast<QDialog*>(waiting))
      dialog->QDialog::done(QDialog::Rejected);
    else
      waiting->close();
  }

  static std::string textOf(const QWidget& window) {
    if (const auto* box = qobject_cast<const QMessageBox*>(&window))
      return (box->text() + " " + box->informativeText()).toStdString();
    QStringList texts;
    for (const QLabel* label : window.findChildren<QLabel*>()) texts += label->text();
    return texts.join(" ").toStdString();
  }

  QTimer timer_;
  QPointer<QWidget> seen_;
  int looks_ = 0;
};

}  // namespace fidaleon::tests
