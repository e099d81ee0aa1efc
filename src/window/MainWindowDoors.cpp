// The ways from this parish to another, and back to what was being typed.

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>

#include "window/MainWindow.h"
#include "window/MoveDialog.h"
#include "window/PreferencesDialog.h"

namespace fidaleon::app {

void MainWindow::newParish() {
  if (const auto directory = door_.create(this, ParishDoor::freeDirectory()))
    depart({Departure::To::Parish, *directory});
}

void MainWindow::openParish() {
  if (const auto directory = door_.choose(this)) depart({Departure::To::Parish, *directory});
}

void MainWindow::connectToServer() {
  if (const auto directory = door_.connectToServer(this))
    depart({Departure::To::Parish, *directory});
}

// While it is moved nobody has it open, this program neither.
void MainWindow::moveParish() {
  MoveDialog dialog(desk_, ParishDoor::freeDirectory(), this);
  if (dialog.exec() != QDialog::Accepted || !copyBefore("Trasladar la parroquia")) return;
  const MoveOrder order = dialog.order();
  depart({Departure::To::Move, order.from, order});
}

void MainWindow::preferences() {
  PreferencesDialog dialog(desk_, door_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  copies_ =
      SafetyCopies(desk_.files().directory, copiesKept(desk_.entorno().settings, desk_.config()));
  if (dialog.reopens()) depart({Departure::To::Parish, *dialog.reopens()});
}

// Without the one that is open.
void MainWindow::fillRecent() {
  recent_->clear();
  const auto here = std::filesystem::absolute(desk_.files().directory);
  for (const KnownParish& parish : door_.recent()) {
    if (parish.directory == here) continue;
    QString text = QString::fromStdString(parish.name);
    QAction* line = recent_->addAction(text.replace("&", "&&"));
    line->setStatusTip(QString::fromStdString(parish.directory.string()));
    connect(line, &QAction::triggered, this, [this, directory = parish.directory] {
      if (!busy_) depart({Departure::To::Parish, directory});
    });
  }
  recent_->setEnabled(!recent_->isEmpty());
}

void MainWindow::offerDrafts() {
  if (watch_) watch_->offerLeft([this](const Task& task) { return resume(task); });
}

FormWatch::Resumed MainWindow::resume(const Task& task) {
  using Resumed = FormWatch::Resumed;
  const auto command = std::find_if(commands().begin(), commands().end(),
                                    [&](const Command& c) { return c.id == task.command; });
  if (command == commands().end()) return Resumed::Gone;
  showNode(task.node);
  filter_->clear();
  setScope(0, {});
  // The list was given up, or cannot be read: that says nothing about the record.
  if (task.record != 0 && !chooseRow(task.record) && !finishReading()) return Resumed::Later;
  if (task.record != 0 && !chooseRow(task.record)) return Resumed::Gone;
  if (!applies(*command, choice())) return Resumed::Gone;
  run(*command);
  return Resumed::Yes;
}

}  // namespace fidaleon::app
