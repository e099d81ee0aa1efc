// rooms: window registers support store
// Each command of the window on a parish file of so many baptisms and as many persons: how long
// until it answers, how long until all is done, what it asks of the machine, and the longest time
// in which the window answered nothing. Sizes as arguments, 1000 and 100000 otherwise; a file is
// built once and kept beside the program.

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <fstream>

#include "benches/Bench.h"
#include "benches/People.h"
#include "benches/Registers.h"
#include "catalogue/ListReports.h"
#include "core/contract/CcNodos.h"
#include "parish/NewParish.h"
#include "qt/QtUserInterface.h"
#include "registers/common/FormaPartida.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"
#include "window/MainWindow.h"

namespace {
long syncs = 0;
}

// Whoever syncs in this program comes by here.
extern "C" int fsync(int file) {
  ++syncs;
  return static_cast<int>(::syscall(SYS_fsync, file));
}
extern "C" int fdatasync(int file) {
  ++syncs;
  return static_cast<int>(::syscall(SYS_fdatasync, file));
}

namespace {

using namespace fidaleon;
using Steady = std::chrono::steady_clock;

constexpr int PER_BOOK = 1000;

double millisecondsSince(Steady::time_point start) {
  return std::chrono::duration<double, std::milli>(Steady::now() - start).count();
}

/// The number behind a word of a file that the system writes about this program.
long told(const char* file, const std::string& word) {
  std::ifstream in(file);
  for (std::string name; in >> name;)
    if (long number = 0; name == word && in >> number) return number;
  return 0;
}

long memory() {
  return told("/proc/self/status", "VmRSS:") / 1024;
}

/// Notes the longest time between two of its beats.
class Pulse : public QTimer {
 public:
  Pulse() {
    setTimerType(Qt::PreciseTimer);
    callOnTimeout([this] { beat(); });
    start(1);
  }
  void beat() {
    longest = std::max(longest, millisecondsSince(last_));
    last_ = Steady::now();
  }
  void begin() {
    last_ = Steady::now();
    longest = 0;
  }
  double longest = 0;

 private:
  Steady::time_point last_;
};

/// Closes every dialog that has been shown for a moment; agrees to what is asked, and saves where a
/// file is asked for.
class Closer : public QTimer {
 public:
  explicit Closer(QString file) : file_(std::move(file)) {
    callOnTimeout([this] { close(); });
    start(30);
  }
  QString ending = "csv";

 private:
  void close() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog->inherits("QProgressDialog")) return;
    if (auto* box = qobject_cast<QMessageBox*>(dialog); box && !box->buttons().empty())
      return box->buttons().first()->click();  // yes, or that it has been read
    auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
    if (!name) return void(dialog->close());
    QFile::remove(file_ + "." + ending);
    name->setText(file_ + "." + ending);
    QMetaObject::invokeMethod(dialog, "accept");
  }
  QString file_;
};

app::ParishFiles parishOf(int size) {
  const app::ParishFiles files(
      (QCoreApplication::applicationDirPath() + "/parroquia-").toStdString() +
      std::to_string(size));
  if (files.exists()) return files;
  app::NewParish parish;
  parish.name = "San Pedro";
  parish.edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;
  parish.user = "ana";
  parish.town = "Alcalá de Henares";
  parish.province = 28;
  parish.directory = files.directory;
  app::createParish(parish, {2026, 11, 22});
  const auto connection = store::openDatabase(files.parish(), store::parishSchema());
  connection->engine().run("PRAGMA synchronous=OFF");
  connection->BeginTrans();
  bench::FilledRegister(*connection, *formaPartida(BAUTISMO), size, PER_BOOK);
  bench::fillCensus(*connection, size);
  connection->CommitTrans();
  return files;
}

class Session {
 public:
  explicit Session(int size)
      : size_(size), closer_(QDir::tempPath() + "/fidaleon-lista-" + QString::number(getpid())) {
    const app::ParishFiles files = parishOf(size);
    measure("abrir y ver la lista", [&] {
      desk_ = std::make_unique<app::Desk>(files, "ana", person_, settings_, clock_);
      window_ = std::make_unique<app::MainWindow>(*desk_);
      window_->show();
      window_->grab();
    });
  }
  ~Session() {
    for (const char* ending : {".csv", ".ods"})
      QFile::remove(QDir::tempPath() + "/fidaleon-lista-" + QString::number(getpid()) + ending);
  }

  void run() {
    for (const char* node : {"LibrosBautismo", CcNodos::PADRON, CcNodos::COLABORADOR, "Municipios",
                             "PartidasBautismo"})
      measure(std::string("elegir ") + node, [&] { show(node); });
    onRows("PartidasBautismo", "propiedades-partida", "nueva-partida", "eliminar-partida");
    command("anular", "anular una partida");
    command("validar", "validarla");
    show(CcNodos::PADRON);
    settle();
    onRows("Padrón", "propiedades-empadronado", "nuevo-empadronado", "eliminar-empadronado");
    for (const char* ending : {"csv", "ods"}) {
      closer_.ending = ending;
      command("guardar-lista", std::string("guardar la lista del padrón en ") + ending);
    }
    for (const app::ListReport& report : app::listReports()) {
      show(report.node.c_str());
      command("informe-entero", report.title);
    }
  }

 private:
  void show(const char* node) {
    window_->showNode(node);
    window_->grab();
  }

  void onRows(const std::string& list, const char* open, const char* add, const char* remove) {
    for (const QString text : {"b", "be", "bez", ""})
      measure(list + ": filtrar por «" + text.toStdString() + "»", [&] {
        window_->filter().setText(text);
        window_->grab();
      });
    for (const int column : {0, 3, 4})
      measure(list + ": ordenar por la columna " + std::to_string(column + 1), [&] {
        window_->table().sortByColumn(column, Qt::AscendingOrder);
        window_->grab();
      });
    window_->table().sortByColumn(-1, Qt::AscendingOrder);
    settle();
    window_->table().selectRow(window_->table().model()->rowCount() / 2);
    command(open, list + ": abrir uno y cancelar");
    command(add, list + ": uno nuevo y cancelar");
    command(remove, list + ": eliminar uno");
  }

  void command(const char* id, const std::string& name) {
    measure(name, [&] { window_->action(id)->trigger(); });
  }

  // The window keeps reading between what the user does: until then it is not done.
  void settle() {
    auto quiet = Steady::now();
    for (int rows = -1; millisecondsSince(quiet) < 100;) {
      QCoreApplication::processEvents(QEventLoop::AllEvents);
      const int now = window_->table().model()->rowCount();
      if (std::exchange(rows, now) == now && !window_->isReading()) continue;
      quiet = done_ = Steady::now();
      cpuDone_ = bench::now();
    }
  }

  void measure(const std::string& name, const std::function<void()>& work) {
    const long calls = told("/proc/self/io", "syscr:") + told("/proc/self/io", "syscw:");
    const long synced = syncs;
    pulse_.begin();
    const double cpu = bench::now();
    const auto start = done_ = Steady::now();
    work();
    const double answered = millisecondsSince(start);
    pulse_.beat();
    done_ = Steady::now();
    cpuDone_ = bench::now();
    const double worked = cpuDone_ - cpu;
    settle();
    const double whole = std::chrono::duration<double, std::milli>(done_ - start).count();
    const long asked = told("/proc/self/io", "syscr:") + told("/proc/self/io", "syscw:") - calls;
    bench::line(std::to_string(size_) + ": " + name,
                bench::shown(answered, " ms") + ", cpu " + bench::shown(worked, ""),
                "todo " + bench::shown(whole, " ms") + ", cpu " + bench::shown(cpuDone_ - cpu, ""),
                std::to_string(asked) + " lecturas y escrituras, " +
                    std::to_string(syncs - synced) + " syncs, " + std::to_string(memory()) + " MB",
                "sin responder " + bench::shown(pulse_.longest, " ms"), pulse_.longest <= 200);
  }

  int size_;
  Pulse pulse_;
  Closer closer_;
  Steady::time_point done_;
  double cpuDone_ = 0;
  qt::QtUserInterface person_;
  support::MemorySettings settings_;
  support::FixedClock clock_{text::Date{2026, 11, 22}, "10:30"};
  std::unique_ptr<app::Desk> desk_;
  std::unique_ptr<app::MainWindow> window_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Fidaleon");
  std::vector<int> sizes;
  for (int i = 1; i < argc; ++i) sizes.push_back(std::atoi(argv[i]));
  if (sizes.empty()) sizes = {1000, 100000};
  for (const int size : sizes) Session(size).run();
}
