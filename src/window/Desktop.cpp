#include "window/Desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <chrono>
#include <fstream>
#include <map>

#include "printing/Templates.h"
#include "qt/Letters.h"
#include "window/Beside.h"
#include "window/CarefulQuestion.h"
#include "window/CopyReturn.h"
#include "window/EditionQuestion.h"
#include "window/LastWords.h"
#include "window/ParishMove.h"
#include "window/ServerEntry.h"
#include "window/StartDialog.h"

namespace fidaleon::app {
namespace {

constexpr std::chrono::seconds DRAFT_EVERY{3};

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
      help_(manualDirectory()) {}

int Desktop::run(const std::filesystem::path& asked) {
  qt::useLetters(
      QString::fromStdString(readPreference(settings_, {}, Preference::LetterSize)).toInt());
  std::optional<ParishFiles> files = first(asked);
  while (files) {
    std::unique_ptr<Desk> desk = open(*files);
    if (!desk) break;
    const Departure departure = work(*desk);
    desk.reset();
    if (departure.to == Departure::To::End) break;
    if (departure.to == Departure::To::Start)
      files = start();
    else
      files = ParishFiles(departure.move ? move(*departure.move) : departure.directory);
    returning_ = departure.to == Departure::To::Copy;
  }
  awaitForgotten();
  return 0;
}

std::filesystem::path Desktop::usualDirectory() const {
  const Preferences preferences = readPreferences(settings_);
  return preferences.directory.empty() ? defaultDirectory() : preferences.directory;
}

// A folder that once held a parish and holds none now is a fault, not a first run.
bool Desktop::isFirstRun(const ParishFiles& files) const {
  return readPreferences(settings_).directory != std::filesystem::absolute(files.directory) &&
         !std::ifstream(files.note());
}

std::optional<ParishFiles> Desktop::first(const std::filesystem::path& asked) {
  const ParishFiles files(std::filesystem::absolute(asked.empty() ? usualDirectory() : asked));
  if (files.exists() || !isFirstRun(files)) return files;
  if (asked.empty()) return start();
  const auto made = door_.create(nullptr, files.directory);
  return made ? std::optional(ParishFiles(*made)) : std::nullopt;
}

std::optional<ParishFiles> Desktop::start() {
  StartDialog dialog(door_);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return ParishFiles(dialog.chosen());
}

std::unique_ptr<Desk> Desktop::open(ParishFiles& files) {
  if (std::exchange(returning_, false)) returnToCopy(files);
  if (!std::exchange(settled_, false)) {
    const auto chosen = chooseOfMoved(files.directory);
    if (!chosen) return nullptr;
    files = ParishFiles(*chosen);
  }
  while (true) {
    try {
      if (files.isOnServer()) enterServer(nullptr, files);
      auto desk = std::make_unique<Desk>(files, user(), watch_, settings_, clock_);
      remember(*desk);
      return desk;
    } catch (const std::exception& e) {
      if (!tryRemedy(describeFault(e, files), files)) return nullptr;
    }
  }
}

std::string Desktop::user() const {
  const std::string kept = readPreferences(settings_).user;
  return kept.empty() ? accountName() : kept;
}

void Desktop::remember(Desk& desk) {
  const auto directory = std::filesystem::absolute(desk.files().directory);
  std::string title;
  try {
    title = desk.parishTitle();
  } catch (const store::Error&) {
    // Told by whoever needs it next.
  }
  try {
    writePreferences(settings_, {user(), directory});
    door_.remember({title, directory});
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
    case Remedy::Password:  // asked for by whoever tries again
      return true;
    case Remedy::OtherIsOff:
      if (knowsThatNobodyIsThere()) takeOver(files);
      return true;
    case Remedy::ReturnToCopy:
      returnToCopy(files);
      return true;
    case Remedy::NewParish:
      if (const auto made = door_.create(nullptr, files.directory)) files = ParishFiles(*made);
      return true;
    case Remedy::OtherFolder:
      if (const auto other = door_.choose(nullptr)) files = ParishFiles(*other);
      return true;
    case Remedy::Exit:
      return false;
  }
  return false;
}

std::filesystem::path Desktop::move(const MoveOrder& order) {
  settled_ = true;
  return moveInSight(order, user(), text::toShort(clock_.today()) + " a las " + clock_.now());
}

Departure Desktop::work(Desk& desk) {
  watch_.workOn(desk.files().parish());
  const LastWords lastWords(watch_);
  QTimer often;
  QObject::connect(&often, &QTimer::timeout, [this] { watch_.keep(); });
  often.start(DRAFT_EVERY);
  if (!settleEdition(desk) || !desk.setUp()) return {};
  MainWindow window(desk, &watch_);
  QObject::connect(&window, &MainWindow::helpWanted, &help_, &Help::open);
  window.show();
  QTimer::singleShot(0, &window, [&window] {
    window.offerDrafts();
    window.tellOfIncompleteEntries();
  });
  QApplication::exec();
  return window.departure();
}

}  // namespace fidaleon::app
