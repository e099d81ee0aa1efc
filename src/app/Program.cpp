#include "app/Program.h"

#include <QApplication>
#include <QIcon>
#include <iostream>

#include "app/CommandLine.h"
#include "app/Import.h"
#include "app/SecretKeeper.h"
#include "app/Server.h"
#include "dbase/Csv.h"
#include "parish/server/ServerParish.h"
#include "qt/Spanish.h"
#include "showroom/Demo.h"
#include "showroom/Pictures.h"
#include "window/Desktop.h"
#include "window/LastWords.h"

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

int runTask(const CommandLine& line) {
  switch (line.task) {
    case CommandLine::Task::Demo:
      return runDemo(line.path, std::cout) ? 0 : 1;
    case CommandLine::Task::Pictures:
      return renderPictures(line.path, std::cout) ? 0 : 1;
    default:
      return Desktop().run(line.path);
  }
}

/// Needs neither a parish nor the toolkit.
int printTable(const CommandLine& line) {
  try {
    dbase::Table table = dbase::Table::open(
        line.path, line.codePage,
        [](const dbase::Doubt& doubt) { std::cerr << doubt.sentence() << "\n"; });
    dbase::writeCsv(table, std::cout);
    if (table.deleted() > 0)
      std::cerr << "Registros borrados, que no se muestran: " << table.deleted() << ".\n";
    if (std::cout.flush()) return 0;
    std::cerr << "No se ha podido escribir todo.\n";
  } catch (const dbase::Error& error) {
    std::cout.flush();
    std::cerr << error.what() << "\n";
  }
  return 1;
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
  if (line.task == CommandLine::Task::Table) return printTable(line);
  store::keepPasswordsIn(std::make_unique<SecretKeeper>(std::make_unique<store::PassFile>()));
  if (line.task == CommandLine::Task::Import) return importRegisters(line.path);
  if (line.task == CommandLine::Task::Server) return connectServer(line);
  if (line.task == CommandLine::Task::Move) return moveToServer(line);
  if (line.task == CommandLine::Task::Script) return printScript(line);
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
  QApplication::setDesktopFileName("org.fidaleon.Fidaleon");
  QIcon drawn(":/fidaleon/icon-128.png");
  drawn.addFile(":/fidaleon/icon-48.png");
  QApplication::setWindowIcon(QIcon::fromTheme("org.fidaleon.Fidaleon", drawn));
  qt::speakSpanish(application);
  std::set_terminate(&LastWords::speakAndEnd);
  return runTask(line);
}

}  // namespace fidaleon::app
