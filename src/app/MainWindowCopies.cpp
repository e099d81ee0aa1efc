// What the main window saves, and what it brings back.

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QStatusBar>
#include <QTableView>

#include "app/CarefulQuestion.h"
#include "app/CopyReturn.h"
#include "app/ListExport.h"
#include "app/MainWindow.h"
#include "app/WindowSettings.h"
#include "store/Open.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr int PASSING_MS = 8000;
constexpr const char* BACKUP_FOLDER = "copia.carpeta";

/// "Eliminar en Partidas, Bautismo"
std::string nameFor(const Command& command, const Choice& chosen) {
  std::string name;
  for (const char c : command.text)
    if (c != '&') name += c;
  name = text::replaceAll(name, "…", "");
  if (command.kinds == 0 || !chosen.node) return name;
  const std::string& path = chosen.node->node.Path;
  const std::size_t first = path.find('\\');
  const std::string place = first == std::string::npos ? path : path.substr(first + 1);
  return name + " en " + text::replaceAll(place, "\\", ", ");
}

}  // namespace

// A command that is there to take something away gets its copy at once. Any other may still do so
// in a dialog, as when a book is accepted without some of its entries; it gets its copy when it
// comes to that, since to copy the parish for every card that is opened would be slow.
void MainWindow::carryOut(const Command& command, const Choice& chosen) {
  std::unique_ptr<Precaution> copy;
  bool settled = !command.destructive || protect(command, chosen, copy);
  if (!settled) return;
  settled = command.destructive;
  const store::RemovalWatch::Listener listener(removals_, [&] {
    if (!settled) settled = protect(command, chosen, copy);
    if (!settled)
      throw store::Error(store::ErrorKind::Other,
                         "No se ha eliminado nada, porque no se ha podido guardar antes una copia "
                         "de la parroquia.");
  });
  command.run(*this, chosen);
}

bool MainWindow::protect(const Command& command, const Choice& chosen,
                         std::unique_ptr<Precaution>& copy) {
  try {
    const forms::Hourglass hourglass(desk_.entorno().ui);
    copy = std::make_unique<Precaution>(copies_, parish(), nameFor(command, chosen), thisMoment());
    return true;
  } catch (const store::Error& e) {
    QWidget* const dialog = QApplication::activeModalWidget();
    return askToGoOnWithoutCopy(dialog ? dialog : this, e.what());
  }
}

void MainWindow::backUp() {
  const std::string known = read(BACKUP_FOLDER);
  QFileDialog dialog(this, tr("Copia de seguridad"),
                     known.empty() ? QDir::homePath() : QString::fromStdString(known),
                     tr("Copias (*.copia)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("copia");
  dialog.selectFile("parroquia-" + QDate::currentDate().toString("yyyyMMdd") + ".copia");
  if (dialog.exec() != QDialog::Accepted) return;
  const QString file = dialog.selectedFiles().value(0);
  {
    const forms::Hourglass hourglass(desk_.entorno().ui);
    store::backupDatabase(parish(), file.toStdString());
  }
  write(BACKUP_FOLDER, QFileInfo(file).absolutePath().toStdString());
  QMessageBox::information(this, tr("Copia de seguridad"),
                           tr("La copia se ha guardado y comprobado en «%1».").arg(file));
}

void MainWindow::returnToCopy() {
  if (!CopyReturn(desk_, copies_, this).run()) return;
  setScope(0, {});
  showParishName();
}

void MainWindow::showParishName() {
  const QString name = QString::fromStdString(desk_.parishName());
  setWindowTitle(tr("%1 — Fidaleon").arg(name));
  parishName_->setText("  " + tr("Parroquia: %1").arg(name) + "  ");
}

void MainWindow::saveList() {
  const QString done = app::saveList(desk_, *table_, this);
  if (!done.isEmpty()) statusBar()->showMessage(done, PASSING_MS);
}

}  // namespace fidaleon::app
