// rooms: registers locks store support
// Lock sessions: that of one command beside the bare system calls, one that holds thousands, and
// one among a hundred; in a folder, and on a server, where what is waited for counts by the clock
// and a session of one command is two journeys.

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <vector>

#include "benches/Bench.h"
#include "benches/ServerWorld.h"
#include "forms/ScriptedUser.h"
#include "locks/OfdLock.h"
#include "locks/ProcesarBloqueos.h"
#include "locks/ServerMeeting.h"
#include "support/Clocks.h"

namespace {

using namespace fidaleon;

constexpr int ROUNDS = 2000;
constexpr int MANY = 10000;
constexpr int DESKS = 100;

using Session = std::unique_ptr<locks::ProcesarBloqueos>;

/// A place to meet with a scripted user at each desk.
struct Office {
  explicit Office(locks::Meet where = locks::meetingAt) : meet(std::move(where)) {}
  Session open() {
    auto session = std::make_unique<locks::ProcesarBloqueos>(user, clock, "ana", "despacho", meet);
    session->Inicializar(folder.path().string());
    return session;
  }
  bench::Folder folder;
  locks::Meet meet;
  forms::ScriptedUser user;
  support::FixedClock clock{text::Date{2026, 11, 22}};
};

void take(locks::ProcesarBloqueos& session) {
  if (session.lngEfectuarBloqueos() != 0) std::abort();
}

void define(locks::ProcesarBloqueos& session, const std::string& record) {
  FDAPI::DefinicionBloqueo entry;
  entry.strTabla = "Bautismo";
  entry.strRegistro = record;
  session.DefinirBloqueo(entry);
}

void commandSession(Office& office, const std::string& table) {
  const Session session = office.open();
  for (const char* shared : {"Institucion", "Provincia", "Municipio"}) {
    FDAPI::DefinicionBloqueo definition;
    definition.strTabla = shared;
    definition.blnBloqueoParcialTabla = true;
    session->DefinirBloqueo(definition);
  }
  FDAPI::DefinicionBloqueo entries;
  entries.strTabla = table;
  session->DefinirBloqueo(entries);
  take(*session);
}

/// Locks on `entries` records, all in one step or each in its own.
void takeMany(Office& office, int entries, bool atOnce) {
  const Session session = office.open();
  for (int i = 1; i <= entries; ++i) {
    define(*session, std::to_string(i));
    if (!atOnce) take(*session);
  }
  take(*session);
}

/// What any such session must do: lock the guard, make, lock, write and remove a file of its own.
void bareSession(const std::filesystem::path& directory) {
  locks::File guard = locks::File::openOrCreate(directory / "guardia");
  if (!guard.tryLock()) std::abort();
  {
    locks::File own = locks::File::create(directory / "propio");
    if (!own.tryLock()) std::abort();
    own.write("una línea");
  }
  std::filesystem::remove(directory / "propio");
}

/// What each of them costs, and what it may, in milliseconds.
struct Aims {
  double atOnce, amongMany, besideThousands;
};

void measure(Office& office, const std::string& where, const bench::Time& time, const Aims& aims) {
  const auto one = [&] { commandSession(office, "Confirmacion"); };
  const auto oneByOne = [&](int entries) {
    return bench::milliseconds(
        2, [&] { takeMany(office, entries, false); }, time);
  };
  bench::within("10.000 bloqueos de una vez" + where,
                bench::milliseconds(
                    5, [&] { takeMany(office, MANY, true); }, time),
                aims.atOnce);
  bench::growth("cada bloqueo de 10.000 uno a uno, frente a 1.000" + where, oneByOne(MANY),
                oneByOne(MANY / 10) * 10, 1.5);
  std::vector<Session> desks;
  for (int i = 0; i < DESKS; ++i) {
    desks.push_back(office.open());
    define(*desks.back(), "mesa" + std::to_string(i));
    take(*desks.back());
  }
  bench::within("una orden entre 100 sesiones" + where, bench::milliseconds(5, one, time),
                aims.amongMany);
  desks.push_back(office.open());
  for (int i = 1; i <= MANY; ++i) define(*desks.back(), std::to_string(i));
  take(*desks.back());
  bench::within("una orden junto a quien tiene 10.000" + where, bench::milliseconds(5, one, time),
                aims.besideThousands);
}

/// What any such session must do: store its locks and take them away again.
void bareServerSession(store::Link& link) {
  link.ask(
      "INSERT INTO bloqueos SELECT 0, 0, 'T', 'tabla' || n, '', '' FROM generate_series(1, 4) n");
  link.ask("DELETE FROM bloqueos WHERE puesto = 0");
}

}  // namespace

int main() {
  Office office;
  const auto commands = [&](Office& at, int rounds) {
    for (int i = 0; i < rounds; ++i) commandSession(at, "Bautismo");
  };
  bench::ratio("2.000 sesiones de bloqueo de una orden",
               bench::inTurn(
                   5, [&] { commands(office, ROUNDS); },
                   [&] {
                     for (int i = 0; i < ROUNDS; ++i) bareSession(office.folder.path());
                   }),
               3);
  measure(office, "", bench::now, {10, 5, 10});

  const tests::PostgresDatabase database;
  const auto seat = std::make_shared<locks::Seat>(database.address());
  Office onServer([&](const auto&) { return std::make_unique<locks::ServerMeeting>(seat); });
  store::Link bare(database.address());
  const bench::Time time = bench::withServer(static_cast<int>(
      bare.ask("SELECT pid FROM pg_stat_activity WHERE datname = current_database() AND "
               "application_name LIKE '%bloqueos)'")
          .integer(0, 0)));
  bench::ratio("2.000 sesiones de bloqueo de una orden, en el servidor",
               bench::inTurn(
                   5, [&] { commands(onServer, ROUNDS); },
                   [&] {
                     for (int i = 0; i < ROUNDS; ++i) bareServerSession(bare);
                   },
                   bench::wall),
               3);
  const auto before = seat->journeys();
  commands(onServer, 1);
  const auto journeys = seat->journeys() - before;
  bench::line("viajes al servidor de una sesión de bloqueo", std::to_string(journeys), "-", "-",
              "<= 2", journeys <= 2);
  measure(onServer, ", en el servidor", time, {150, 10, 10});
  return 0;
}
