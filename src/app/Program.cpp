#include "app/Program.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <iostream>

#include "app/CommandLine.h"
#include "app/Demo.h"
#include "app/FirstRunWizard.h"
#include "app/LastWords.h"
#include "app/MainWindow.h"
#include "app/OpeningFault.h"
#include "app/Pictures.h"
#include "app/Preferences.h"
#include "qt/QtUserInterface.h"
#include "qt/Spanish.h"
#include "support/Clocks.h"
#include "support/FileSettings.h"

namespace fidaleon::app {
namespace {

/// An exception that no one caught must not vanish in the event loop.
class Application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (...) {
      LastWords::speakAndEnd();
    }
  }
};

/// The program with a window: finds the parish, or makes one, and works on it.
class Desktop {
 public:
  Desktop() : preferences_(readPreferences(settings_)) {}

  int run(const std::filesystem::path& asked) {
    ParishFiles files(asked.empty() ? usualDirectory() : asked);
    if (!files.exists() && isFirstRun(files)) {
      if (!createFirst(files)) return 0;
    }
    while (true) {
      const std::unique_ptr<Desk> desk = open(files);
      if (!desk) return 0;
      return work(*desk);
    }
  }

 private:
  std::filesystem::path usualDirectory() const {
    return preferences_.directory.empty() ? defaultDirectory() : preferences_.directory;
  }

  // A folder that once held a parish and holds none now is a fault, not a first run.
  bool isFirstRun(const ParishFiles& files) const {
    return preferences_.directory != files.directory && !std::filesystem::exists(files.note());
  }

  bool createFirst(ParishFiles& files) {
    NewParish proposal;
    proposal.directory = files.directory;
    proposal.user = preferences_.user.empty() ? accountName() : preferences_.user;
    FirstRunWizard wizard(proposal);
    while (wizard.exec() == QDialog::Accepted) {
      const NewParish parish = wizard.parish();
      try {
        createParish(parish, clock_.today());
        files = ParishFiles(parish.directory);
        preferences_.user = parish.user;
        return true;
      } catch (const std::exception& e) {
        QMessageBox::critical(nullptr, QObject::tr("No se puede crear la parroquia"),
                              QString::fromUtf8(e.what()));
        wizard.restart();
      }
    }
    return false;
  }

  std::unique_ptr<Desk> open(ParishFiles& files) {
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

  std::string user() const { return preferences_.user.empty() ? accountName() : preferences_.user; }

  void remember(const ParishFiles& files) {
    preferences_.directory = std::filesystem::absolute(files.directory);
    preferences_.user = user();
    try {
      writePreferences(settings_, preferences_);
    } catch (const std::runtime_error& e) {
      QMessageBox::warning(nullptr, "Fidaleon", QString::fromUtf8(e.what()));
    }
  }

  // False when the user gives up.
  bool tryRemedy(const OpeningFault& fault, ParishFiles& files) {
    QMessageBox box(QMessageBox::Critical, QString::fromStdString(fault.title),
                    QString::fromStdString(fault.text));
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

  void chooseFolder(ParishFiles& files) {
    const QString chosen =
        QFileDialog::getExistingDirectory(nullptr, QObject::tr("Carpeta de la parroquia"),
                                          QString::fromStdString(files.directory.string()));
    if (!chosen.isEmpty()) files = ParishFiles(chosen.toStdString());
  }

  int work(Desk& desk) {
    const LastWords lastWords(watch_, desk.files().directory);
    if (!desk.reportsPutAside().empty())
      QMessageBox::information(
          nullptr, "Fidaleon",
          QObject::tr("La base de datos de informes estaba estropeada y se ha creado de nuevo. No "
                      "contenía datos de la parroquia.\nLa estropeada se ha guardado como «%1».")
              .arg(QString::fromStdString(desk.reportsPutAside().string())));
    if (!desk.setUp()) return 0;
    MainWindow window(desk);
    window.show();
    return QApplication::exec();
  }

  support::FileSettings settings_{support::FileSettings::defaultFile(), [](const std::string& m) {
                                    QMessageBox::warning(nullptr, "Fidaleon",
                                                         QString::fromStdString(m));
                                  }};
  support::SystemClock clock_;
  Preferences preferences_;
  qt::QtUserInterface person_;
  FormWatch watch_{person_};
};

int runTask(const CommandLine& line) {
  switch (line.task) {
    case CommandLine::Task::Demo:
      return runDemo(line.directory, std::cout) ? 0 : 1;
    case CommandLine::Task::Pictures:
      return renderPictures(line.directory, std::cout) ? 0 : 1;
    default:
      return Desktop().run(line.directory);
  }
}

bool needsNoWindow(const CommandLine& line) {
  return line.task == CommandLine::Task::Demo || line.task == CommandLine::Task::Pictures;
}

}  // namespace

int runProgram(int argc, char** argv) {
  const CommandLine line = CommandLine::parse({argv + 1, argv + argc});
  if (line.task == CommandLine::Task::Help) {
    std::cout << CommandLine::help();
    return 0;
  }
  if (line.task == CommandLine::Task::Wrong) {
    std::cerr << line.complaint << "\nfidaleon --help muestra las opciones.\n";
    return 2;
  }
  if (needsNoWindow(line)) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  } else if (qEnvironmentVariableIsEmpty("DISPLAY") &&
             qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
             qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    std::cerr << "No hay ninguna pantalla: fidaleon necesita un escritorio gráfico.\n"
                 "Sin pantalla puede usarse fidaleon --demo CARPETA.\n";
    return 1;
  }
  int count = 1;  // the toolkit's own options are not ours
  Application application(count, argv);
  QApplication::setApplicationName("Fidaleon");
  QApplication::setApplicationDisplayName("Fidaleon");
  qt::speakSpanish(application);
  std::set_terminate(&LastWords::speakAndEnd);
  return runTask(line);
}

}  // namespace fidaleon::app
