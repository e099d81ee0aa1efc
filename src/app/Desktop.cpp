#include "app/Desktop.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <fstream>
#include <map>

#include "app/CarefulQuestion.h"
#include "app/CopyReturn.h"
#include "app/EditionQuestion.h"
#include "app/FirstRunWizard.h"
#include "app/LastWords.h"
#include "store/Open.h"

namespace fidaleon::app {
namespace {

/// The first start on two workstations at once: one has made the parish, the other works on it too.
bool wantsToJoin(const NewParish& wanted) {
  QMessageBox box(QMessageBox::Question, QObject::tr("Ya hay una parroquia"),
                  QObject::tr("Mientras tanto, en otro puesto se ha creado una parroquia en la "
                              "carpeta «%1». No se ha cambiado nada en ella.")
                      .arg(QString::fromStdString(wanted.directory.string())));
  box.setInformativeText(QObject::tr("¿Quiere trabajar con esa parroquia?"));
  const auto* join = box.addButton(QObject::tr("&Abrir esa parroquia"), QMessageBox::AcceptRole);
  box.addButton(QObject::tr("&Elegir otra carpeta"), QMessageBox::RejectRole);
  box.exec();
  return box.clickedButton() == join;
}

/// What stands in the way is told when the parish is opened again.
void takeOver(const ParishFiles& files) {
  try {
    dismissUnseen(files.resolved().directory);
  } catch (const locks::Unusable&) {
  }
}

bool knowsThatNobodyIsThere() {
  return askCarefully(
      nullptr, QObject::tr("Ya hay otro equipo en la parroquia"),
      QObject::tr("¿Está seguro de que el programa no está abierto en el otro equipo?"),
      QObject::tr("Desde aquí no puede verse. Si el otro equipo se apagó de golpe, puede seguir en "
                  "este. Si alguien trabaja en él, los dos estropearían los datos."),
      QObject::tr("No hay nadie: &abrir aquí"));
}

}  // namespace

Desktop::Desktop()
    : settings_(support::FileSettings::defaultFile(),
                [](const std::string& message) {
                  QMessageBox::warning(nullptr, "Fidaleon", QString::fromStdString(message));
                }),
      preferences_(readPreferences(settings_)) {}

int Desktop::run(const std::filesystem::path& asked) {
  ParishFiles files(std::filesystem::absolute(asked.empty() ? usualDirectory() : asked));
  if (!files.exists() && isFirstRun(files) && !createFirst(files)) return 0;
  while (const std::unique_ptr<Desk> desk = open(files)) {
    const Departure departure = work(*desk);
    if (departure.to == Departure::To::End) break;
    files = ParishFiles(departure.directory);
    returning_ = departure.to == Departure::To::Copy;
  }
  return 0;
}

std::filesystem::path Desktop::usualDirectory() const {
  return preferences_.directory.empty() ? defaultDirectory() : preferences_.directory;
}

// A folder that once held a parish and holds none now is a fault, not a first run.
bool Desktop::isFirstRun(const ParishFiles& files) const {
  return preferences_.directory != std::filesystem::absolute(files.directory) &&
         !std::ifstream(files.note());
}

bool Desktop::createFirst(ParishFiles& files) {
  NewParish proposal;
  proposal.directory = files.directory;
  proposal.user = user();
  FirstRunWizard wizard(proposal);
  while (wizard.exec() == QDialog::Accepted) {
    const NewParish parish = wizard.parish();
    try {
      createParish(parish, clock_.today());
      files = ParishFiles(parish.directory);
      preferences_.user = parish.user;
      return true;
    } catch (const store::NameTaken&) {
      if (!wantsToJoin(parish)) continue;
      files = ParishFiles(parish.directory);
      preferences_.user = parish.user;
      return true;
    } catch (const std::exception& e) {
      QMessageBox::critical(nullptr, QObject::tr("No se puede crear la parroquia"),
                            QString::fromUtf8(e.what()));
    }
  }
  return false;
}

std::unique_ptr<Desk> Desktop::open(ParishFiles& files) {
  if (std::exchange(returning_, false)) returnToCopy(files);
  while (true) {
    try {
      auto desk = std::make_unique<Desk>(files, user(), watch_, settings_, clock_);
      remember(files);
      return desk;
    } catch (const std::exception& e) {
      if (!tryRemedy(describeFault(e, files), files)) return nullptr;
    }
  }
}

std::string Desktop::user() const {
  return preferences_.user.empty() ? accountName() : preferences_.user;
}

void Desktop::remember(const ParishFiles& files) {
  preferences_.directory = std::filesystem::absolute(files.directory);
  preferences_.user = user();
  try {
    writePreferences(settings_, preferences_);
  } catch (const std::runtime_error& e) {
    QMessageBox::warning(nullptr, "Fidaleon", QString::fromUtf8(e.what()));
  }
}

void Desktop::returnToCopy(const ParishFiles& files) {
  try {
    const ParishFiles real = files.resolved();
    const SafetyCopies copies(real.directory);
    const Presence presence(real.directory, user(),
                            text::toShort(clock_.today()) + " a las " + clock_.now());
    CopyReturn(person_, real, nullptr, copies, presence, nullptr).run();
  } catch (const locks::Unusable& e) {
    QMessageBox::critical(nullptr, QObject::tr("Volver a una copia"), QString::fromUtf8(e.what()));
  }
}

// False when the user gives up.
bool Desktop::tryRemedy(const OpeningFault& fault, ParishFiles& files) {
  QMessageBox box(QMessageBox::Critical, QString::fromStdString(fault.title),
                  "<b>" + QString::fromStdString(fault.title).toHtmlEscaped() + "</b>");
  box.setInformativeText(QString::fromStdString(fault.text));
  std::map<QAbstractButton*, Remedy> buttons;
  for (const Remedy remedy : fault.remedies) {
    const auto role = remedy == Remedy::Exit ? QMessageBox::RejectRole : QMessageBox::AcceptRole;
    buttons[box.addButton(QString::fromStdString(remedyName(remedy)), role)] = remedy;
  }
  box.exec();
  const auto chosen = buttons.find(box.clickedButton());
  switch (chosen == buttons.end() ? Remedy::Exit : chosen->second) {
    case Remedy::Retry:
      return true;
    case Remedy::OtherIsOff:
      if (knowsThatNobodyIsThere()) takeOver(files);
      return true;
    case Remedy::ReturnToCopy:
      returnToCopy(files);
      return true;
    case Remedy::NewParish:
      createFirst(files);
      return true;
    case Remedy::OtherFolder:
      chooseFolder(files);
      return true;
    case Remedy::Exit:
      return false;
  }
  return false;
}

void Desktop::chooseFolder(ParishFiles& files) const {
  const QString chosen =
      QFileDialog::getExistingDirectory(nullptr, QObject::tr("Carpeta de la parroquia"),
                                        QString::fromStdString(files.directory.string()));
  if (!chosen.isEmpty()) files = ParishFiles(chosen.toStdString());
}

Departure Desktop::work(Desk& desk) {
  const LastWords lastWords(watch_, desk.files().directory);
  if (!settleEdition(desk) || !desk.setUp()) return {};
  MainWindow window(desk);
  window.show();
  QTimer::singleShot(0, &window, &MainWindow::tellOfIncompleteEntries);
  QApplication::exec();
  return window.departure();
}

}  // namespace fidaleon::app
