// What the main window saves, and what it brings back.

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>

#include "parish/Preferences.h"
#include "parish/WindowSettings.h"
#include "store/Open.h"
#include "store/SoundnessCheck.h"
#include "text/Utf8.h"
#include "window/Beside.h"
#include "window/CarefulQuestion.h"
#include "window/ChosenRows.h"
#include "window/CopyReturn.h"
#include "window/ImportDialog.h"
#include "window/ListExport.h"
#include "window/MainWindow.h"
#include "window/ManyDocuments.h"

namespace fidaleon::app {
namespace {

constexpr int PASSING_MS = 8000;

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
                         "No se ha eliminado nada, porque no se ha guardado antes una copia de la "
                         "parroquia.");
  });
  const bool ofARow = command.needs != Needs::Nothing && command.needs != Needs::List;
  const FormWatch::During during(
      watch_, {command.id, chosen.node ? chosen.node->node.Nombre : "", ofARow ? chosen.id : 0});
  command.run(*this, chosen);
  const bool kept = copy != nullptr;
  copy.reset();
  if (kept) compressCopies();
}

// What others keep them from being today is done after the next command.
void MainWindow::compressCopies() {
  compressing_ = {};  // the new one goes on where that one stops
  compressing_ = std::jthread([copies = copies_](const std::stop_token& ending) {
    copies.compressOlder([&] { return !ending.stop_requested(); });
  });
}

bool MainWindow::protect(const Command& command, const Choice& chosen,
                         std::unique_ptr<Precaution>& copy) {
  try {
    const forms::Hourglass hourglass(desk_.entorno().ui);
    const Precaution::Runner beside = [&](const auto& work) {
      QWidget* const dialog = QApplication::activeModalWidget();
      runBeside(dialog ? dialog : this,
                tr("Guardando antes una copia de la parroquia, por si hubiera que deshacerlo…"),
                MayCancel::Yes, work);
    };
    copy = std::make_unique<Precaution>(copies_, parish(), nameFor(command, chosen), thisMoment(),
                                        beside);
    return true;
  } catch (const store::Error& e) {
    if (e.kind() == store::ErrorKind::Cancelled) return false;
    metDamage_ = e.kind() == store::ErrorKind::NotADatabase && isDamaged();
    if (metDamage_) return false;  // told when the command has ended
    QWidget* const dialog = QApplication::activeModalWidget();
    return askToGoOnWithoutCopy(dialog ? dialog : this, e.what());
  }
}

bool MainWindow::copyBefore(const std::string& what) {
  try {
    const forms::Hourglass hourglass(desk_.entorno().ui);
    runBeside(this, tr("Guardando antes una copia de la parroquia…"), MayCancel::Yes,
              [&](const store::Progress& progress) {
                const auto parish =
                    store::openDatabase(desk_.files().parish(), store::parishSchema());
                copies_.make(*parish, what, thisMoment(), progress);
              });
    return true;
  } catch (const store::Error& e) {
    return e.kind() != store::ErrorKind::Cancelled && askToGoOnWithoutCopy(this, e.what());
  }
}

void MainWindow::backUp() {
  const std::string known =
      readPreference(desk_.entorno().settings, desk_.config(), Preference::CopiesFolder);
  QFileDialog dialog(this, tr("Copia de seguridad"),
                     known.empty() ? QDir::homePath() : QString::fromStdString(known),
                     tr("Copias (*.copia)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("copia");
  dialog.selectFile("parroquia-" + QDate::currentDate().toString("yyyyMMdd") + ".copia");
  if (dialog.exec() != QDialog::Accepted) return;
  const QString file = dialog.selectedFiles().value(0);
  try {
    const forms::Hourglass hourglass(desk_.entorno().ui);
    const std::filesystem::path source = desk_.files().parish();
    runBeside(this, tr("Guardando y comprobando la copia…"), MayCancel::Yes,
              [&](const store::Progress& progress) {
                store::backupDatabase(*store::openDatabase(source, store::parishSchema()),
                                      file.toStdString(), store::Check::Whole, progress);
              });
  } catch (const store::Error& e) {
    if (e.kind() == store::ErrorKind::Cancelled) return;
    throw;
  }
  try {
    writePreference(desk_.entorno().settings, desk_.config(), Preference::CopiesFolder,
                    QFileInfo(file).absolutePath().toStdString());
  } catch (const std::runtime_error&) {
    // The copy is made; that the folder is not proposed again is not worth a message.
  }
  QMessageBox::information(this, tr("Copia de seguridad"),
                           tr("La copia se ha guardado y comprobado en «%1».").arg(file));
}

void MainWindow::returnToCopy() {
  compressing_ = {};  // what the user chooses from stays as it is
  CopyReturn back(desk_.entorno().ui, desk_.files(), &parish(), copies_, desk_.presence(), this);
  const bool returned = back.run();
  metDamage_ = back.metDamage();
  if (!returned) return;
  setScope(0, {});
  showParishName();
}

// Makes its own copy, when it comes to writing, while nobody else is there.
void MainWindow::importLegacy() {
  ImportDialog(desk_, this).exec();
}

void MainWindow::depart(Departure departure) {
  departure_ = std::move(departure);
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

// The folder may have been on the network. While it still is for others, it stays as it is.
void MainWindow::takeUpLog() {
  const std::filesystem::path file = desk_.files().parish();
  if (store::readersHinderNobody(file)) return;
  try {
    desk_.presence().alone("está abriendo la parroquia", [&] { store::takeUpLog(file); });
  } catch (const store::Error&) {
  } catch (const locks::Unusable&) {
  }
}

bool MainWindow::isDamaged() const {
  return store::isDamaged(desk_.files().parish());
}

bool MainWindow::offerWayOut(const QString& what, const QString& meaning, const QString& way) {
  QMessageBox box(QMessageBox::Critical, tr("La parroquia"), "<b>" + what.toHtmlEscaped() + "</b>",
                  QMessageBox::NoButton, this);
  box.setInformativeText(meaning);
  const QPushButton* out = box.addButton(way, QMessageBox::AcceptRole);
  box.addButton(tr("&Ahora no"), QMessageBox::RejectRole);
  box.exec();
  return box.clickedButton() == out;
}

void MainWindow::sayDamaged() {
  const QString file = QString::fromStdString(desk_.files().parish().string());
  if (offerWayOut(tr("La parroquia está estropeada."),
                  tr("Una parte del archivo «%1» no se puede leer. No siga anotando: lo que se "
                     "escriba ahora puede perderse.\n\nPuede volver a una copia. El archivo "
                     "estropeado se conservará con otro nombre, por si alguien pudiera recuperar "
                     "algo de él.")
                      .arg(file),
                  tr("&Volver a una copia…")))
    depart({Departure::To::Copy, desk_.files().directory});
}

bool MainWindow::isInPlace() {
  const auto now = files::identityOf(desk_.files().parish());
  if (now && now == identity_) return true;
  const QString file = QString::fromStdString(desk_.files().parish().string());
  if (offerWayOut(
          tr("La parroquia ya no está en su sitio."),
          tr("El archivo «%1» se ha borrado, se ha movido o se ha cambiado por otro "
             "mientras el programa lo tenía abierto. La lista muestra lo que había, pero no "
             "se puede guardar nada.\n\nSi lo ha movido alguien, devuélvalo a su sitio y "
             "siga. Si no, abra de nuevo la carpeta: se verá lo que hay en ella, y podrá "
             "volver a una copia.")
              .arg(file),
          tr("A&brir de nuevo")))
    depart({Departure::To::Parish, desk_.files().directory});
  return false;
}

void MainWindow::showParishName() {
  const QString name = QString::fromStdString(desk_.parishTitle());
  setWindowTitle(tr("%1 — Fidaleon").arg(name));
  parishName_->setText("  " + tr("Parroquia: %1").arg(name) + "  ");
}

void MainWindow::makeDocumentsOfChosen(const Choice& chosen) {
  const QString done = makeDocuments(desk_, *chosen.node, chosenKeys(*table_), this);
  if (!done.isEmpty()) statusBar()->showMessage(done, PASSING_MS);
}

void MainWindow::saveList(Extent extent) {
  if (extent == Extent::Entire && !finishReading()) return;
  const QString done = app::saveList(desk_, *table_, extent, this);
  if (!done.isEmpty()) statusBar()->showMessage(done, PASSING_MS);
}

}  // namespace fidaleon::app
