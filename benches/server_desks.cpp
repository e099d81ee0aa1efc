// rooms: core_facade registers support locks store
// Desks that enter baptisms in one book of a server, each through its command and its dialog: no
// position twice, none lost, and how long they wait for their turn. --desks N --seconds S, 50 and
// 10 otherwise.

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <random>
#include <string_view>
#include <thread>
#include <vector>

#include "benches/Bench.h"
#include "core/facade/cNucleo.h"
#include "forms/ScriptedUser.h"
#include "locks/ServerMeeting.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/LibroNuevo.h"
#include "store/Open.h"
#include "store/postgres/PostgresEngine.h"
#include "store/schema/Installer.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"
#include "tests/support/PostgresCluster.h"

namespace {

using namespace fidaleon;
using namespace std::chrono_literals;
using Watch = std::chrono::steady_clock;

/// What one program has open of the server, and a user before it.
struct Desk {
  Desk(const store::ServerAddress& address, int number)
      : seat(std::make_shared<locks::Seat>(address)),
        connection(std::make_unique<store::PostgresEngine>(address), store::parishSchema(),
                   "/tmp/parroquia.servidor"),
        name("PUESTO" + std::to_string(number)) {
    connection.engine().fenceWith(seat.get());
    user.answerAnything(forms::Answer::Yes);
  }

  /// Asks for the command until its locks are free; how long it had to, in milliseconds.
  double enter() {
    const auto start = Watch::now();
    std::chrono::duration<double, std::milli> waited(-1);
    user.expectForm("frmPartidaBautismo", [&](forms::FormDriver& d) {
      waited = Watch::now() - start;
      d.choose("cboBautismo(22)", "San Pedro");
      d.choose("cboBautismo(23)", "L1");
      d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
      d.type("txtBautismo(7)", "Luis");
      d.type("txtBautismo(8)", name + " " + std::to_string(++stored));
      d.click("cmdBautismo(0)");
      d.click("cmdBautismo(1)");
    });
    while (waited.count() < 0) {
      nucleo.NuevaPartida(connection, config, "PartidasBautismo");
      if (waited.count() < 0) std::this_thread::sleep_for(std::chrono::milliseconds(pause(chance)));
    }
    return waited.count();
  }

  std::shared_ptr<locks::Seat> seat;
  store::Connection connection;
  std::string name;
  int stored = 0;
  FDAPI::cConfig config{"Fidaleon", "", name, "Castellano", false};
  forms::ScriptedUser user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{
      user,  settings,
      clock, config,
      name,  [this](const auto&) { return std::make_unique<locks::ServerMeeting>(seat); }};
  Entorno entorno{user, host, settings, clock, {}};
  cNucleo nucleo{entorno};
  std::mt19937 chance{std::random_device{}()};
  std::uniform_int_distribution<int> pause{5, 50};
};

/// The desk runs in a program of its own, and tells each wait through the pipe.
void startDesk(const store::ServerAddress& address, int number, Watch::time_point until,
               const int (&ends)[2]) {
  if (fork() != 0) return;
  close(ends[0]);
  int result = 1;
  try {
    Desk desk(address, number);
    result = 0;
    while (Watch::now() < until) {
      const double waited = desk.enter();
      if (write(ends[1], &waited, sizeof waited) != sizeof waited) result = 1;
    }
    for (const std::string& problem : desk.user.problems())
      std::fprintf(stderr, "%s\n", problem.c_str());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    result = 1;
  }
  _exit(result);
}

/// All that the desks have told until the last one ended.
std::vector<double> waits(const int (&ends)[2]) {
  close(ends[1]);
  std::vector<double> all;
  for (double one = 0; read(ends[0], &one, sizeof one) == sizeof one;) all.push_back(one);
  std::ranges::sort(all);
  return all;
}

std::int64_t number(store::Connection& connection, const std::string& sql) {
  return connection.Execute(sql).Fields(0).Value().integer();
}

}  // namespace

int main(int argc, char** argv) {
  int desks = 50;
  int seconds = 10;
  for (int i = 1; i + 1 < argc; i += 2)
    (std::string_view(argv[i]) == "--desks" ? desks : seconds) = std::atoi(argv[i + 1]);
  const tests::PostgresDatabase database;
  const auto address = database.address();
  auto engine = std::make_unique<store::PostgresEngine>(address);
  store::Installer(*engine, store::parishSchema()).create();
  store::Connection connection(std::move(engine), store::parishSchema(), "/tmp/parroquia.servidor");
  connection.Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
  insertarLibro(connection, BAUTISMO, {1, 3, 4, "L1", "20260101", true});
  int ends[2];
  if (pipe(ends) != 0) return 1;
  const auto until = Watch::now() + std::chrono::seconds(seconds);
  for (int desk = 1; desk <= desks; ++desk) startDesk(address, desk, until, ends);
  const std::vector<double> all = waits(ends);
  int failed = 0;
  for (int result = 0; wait(&result) > 0;) failed += result != 0;
  if (all.empty()) return 1;
  const auto stored = static_cast<std::int64_t>(all.size());
  const auto rows = number(connection, "SELECT COUNT(*) FROM Bautismo");
  const auto places =
      connection.Execute("SELECT DISTINCT Folio, Numero FROM Bautismo").RecordCount();
  const std::string what = std::to_string(desks) + " puestos anotan en un libro del servidor, " +
                           std::to_string(seconds) + " s: ";
  bench::line(what + std::to_string(stored) + " partidas; repetidas, perdidas o con error",
              std::to_string(rows - places + std::abs(stored - rows) + failed), "-", "-", "0",
              rows == places && rows == stored && failed == 0);
  const auto of = [&](double part) {
    return all[static_cast<std::size_t>(part * static_cast<double>(stored - 1))];
  };
  bench::line(what + "la espera de en medio; la del 99 %",
              bench::shown(of(0.5), " ms") + "; " + bench::shown(of(0.99), " ms"), "-", "-", "-",
              true);
  // Whose turn comes after everybody else's has waited that long.
  const double round = 1e3 * desks * seconds / static_cast<double>(stored);
  bench::ratio(what + "la espera más larga, frente a una ronda de todos", {all.back(), round}, 3);
}
