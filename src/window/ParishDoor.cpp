#include "window/ParishDoor.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "parish/Preferences.h"
#include "parish/server/ServerParish.h"
#include "sample/SampleParish.h"
#include "store/Open.h"
#include "window/Beside.h"
#include "window/FirstRunWizard.h"
#include "window/ServerDialog.h"

namespace fidaleon::app {
namespace {

constexpr const char* APPLICATION = "Fidaleon";
constexpr const char* SECTION = "Recientes";

/// The first start on two workstations at once: one has made the parish, the other works on it too.
bool wantsToJoin(QWidget* over, const NewParish& wanted) {
  QMessageBox box(QMessageBox::Question, QObject::tr("Ya hay una parroquia"),
                  QObject::tr("Mientras tanto, en otro puesto se ha creado una parroquia en %1. No "
                              "se ha cambiado nada en ella.")
                      .arg(QString::fromStdString(
                          wanted.server ? wanted.server->shown()
                                        : "la carpeta «" + wanted.directory.string() + "»")),
                  QMessageBox::NoButton, over);
  box.setInformativeText(QObject::tr("¿Quiere trabajar con esa parroquia?"));
  const auto* join = box.addButton(QObject::tr("&Abrir esa parroquia"), QMessageBox::AcceptRole);
  box.addButton(QObject::tr("&Elegir otra carpeta"), QMessageBox::RejectRole);
  box.exec();
  return box.clickedButton() == join;
}

/// A server is waited for beside the window.
void make(QWidget* over, const NewParish& parish, const text::Date& today) {
  const auto work = [&](const store::Progress&) { createParish(parish, today, fillSampleParish); };
  if (parish.server)
    runBeside(over, QObject::tr("Creando la parroquia…"), MayCancel::No, work);
  else
    work({});
}

std::string numbered(const char* key, std::size_t number) {
  return key + std::to_string(number + 1);
}

}  // namespace

std::vector<KnownParish> ParishDoor::recent() const {
  std::vector<KnownParish> all;
  for (std::size_t i = 0; i < MOST; ++i) {
    const std::string directory = settings_.read(APPLICATION, SECTION, numbered("Carpeta", i));
    if (directory.empty()) break;
    all.push_back({settings_.read(APPLICATION, SECTION, numbered("Nombre", i)), directory});
  }
  return all;
}

void ParishDoor::remember(const KnownParish& parish) {
  std::vector<KnownParish> all = recent();
  std::erase_if(all, [&](const KnownParish& k) { return k.directory == parish.directory; });
  all.insert(all.begin(), parish);
  all.resize(std::min(all.size(), MOST));
  for (std::size_t i = 0; i < all.size(); ++i) {
    settings_.write(APPLICATION, SECTION, numbered("Carpeta", i), all[i].directory.string());
    settings_.write(APPLICATION, SECTION, numbered("Nombre", i), all[i].name);
  }
}

std::optional<std::filesystem::path> ParishDoor::create(QWidget* over,
                                                        const std::filesystem::path& proposed) {
  NewParish proposal;
  proposal.directory = proposed;
  return create(over, std::move(proposal));
}

std::optional<std::filesystem::path> ParishDoor::create(QWidget* over, NewParish proposal) {
  const std::string user = readPreferences(settings_).user;
  proposal.user = user.empty() ? accountName() : user;
  FirstRunWizard wizard(proposal, over);
  while (wizard.exec() == QDialog::Accepted) {
    const NewParish parish = wizard.parish();
    try {
      if (!wizard.opensWhatIsThere()) make(over, parish, clock_.today());
    } catch (const store::NameTaken&) {
      if (!wantsToJoin(over, parish)) continue;
      if (parish.server) connectParish(parish.directory, *parish.server);
    } catch (const std::exception& e) {
      QMessageBox::critical(over, QObject::tr("No se puede crear la parroquia"),
                            QString::fromUtf8(e.what()));
      continue;
    }
    rememberUser(parish.user);
    return parish.directory;
  }
  return std::nullopt;
}

std::optional<std::filesystem::path> ParishDoor::connectToServer(QWidget* over) {
  ServerDialog dialog(freeDirectory(), over);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  if (!dialog.makesNew()) return dialog.folder();
  NewParish proposal;
  proposal.directory = dialog.folder();
  proposal.server = dialog.address();
  return create(over, std::move(proposal));
}

void ParishDoor::rememberUser(const std::string& user) {
  Preferences preferences = readPreferences(settings_);
  preferences.user = user;
  try {
    writePreferences(settings_, preferences);
  } catch (const std::runtime_error& e) {
    QMessageBox::warning(nullptr, "Fidaleon", QString::fromUtf8(e.what()));
  }
}

std::optional<std::filesystem::path> ParishDoor::choose(QWidget* over) const {
  const std::vector<KnownParish> known = recent();
  QString start = QString::fromStdString(
      (known.empty() ? defaultDirectory() : known.front().directory).parent_path().string());
  while (true) {
    const QString chosen = QFileDialog::getExistingDirectory(
        over, QObject::tr("Elija la carpeta de la parroquia"), start);
    if (chosen.isEmpty()) return std::nullopt;
    if (ParishFiles(chosen.toStdString()).exists()) return chosen.toStdString();
    QMessageBox::warning(over, QObject::tr("Abrir una parroquia"),
                         QObject::tr("En la carpeta «%1» no hay ninguna parroquia.\n\nElija la "
                                     "carpeta que contiene el fichero «parroquia.fidaleon», o "
                                     "«parroquia.servidor» si los datos están en un servidor.")
                             .arg(chosen));
    start = chosen;
  }
}

std::filesystem::path ParishDoor::freeDirectory() {
  std::filesystem::path directory = defaultDirectory();
  for (int n = 2; ParishFiles(directory).exists(); ++n) {
    directory = defaultDirectory();
    directory += "-" + std::to_string(n);
  }
  return directory;
}

}  // namespace fidaleon::app
