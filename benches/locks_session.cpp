// rooms: locks support
// Lock sessions: that of one command beside the bare system calls, one that holds thousands, and
// one among a hundred.

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <vector>

#include "benches/Bench.h"
#include "benches/Folder.h"
#include "forms/ScriptedUser.h"
#include "locks/OfdLock.h"
#include "locks/ProcesarBloqueos.h"
#include "support/Clocks.h"

namespace {

using namespace fidaleon;

constexpr int ROUNDS = 2000;
constexpr int MANY = 10000;
constexpr int DESKS = 100;

using Session = std::unique_ptr<locks::ProcesarBloqueos>;

/// A directory with a scripted user at each desk.
struct Office {
  Session open() {
    auto session = std::make_unique<locks::ProcesarBloqueos>(user, clock, "ana", "despacho");
    session->Inicializar(folder.path().string());
    return session;
  }
  bench::Folder folder;
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

}  // namespace

int main() {
  Office office;
  const auto commands = [&](int rounds) {
    for (int i = 0; i < rounds; ++i) commandSession(office, "Bautismo");
  };
  bench::ratio("2.000 sesiones de bloqueo de una orden",
               bench::inTurn(
                   5, [&] { commands(ROUNDS); },
                   [&] {
                     for (int i = 0; i < ROUNDS; ++i) bareSession(office.folder.path());
                   }),
               3);
  bench::within("10.000 bloqueos de una vez",
                bench::milliseconds(5, [&] { takeMany(office, MANY, true); }), 10);
  bench::growth("cada bloqueo de 10.000 uno a uno, frente a 1.000",
                bench::milliseconds(1, [&] { takeMany(office, MANY, false); }),
                bench::milliseconds(1, [&] { takeMany(office, MANY / 10, false); }) * 10, 1.5);
  std::vector<Session> desks;
  for (int i = 0; i < DESKS; ++i) {
    desks.push_back(office.open());
    define(*desks.back(), "mesa" + std::to_string(i));
    take(*desks.back());
  }
  bench::within("una orden entre 100 sesiones",
                bench::milliseconds(5, [&] { commandSession(office, "Confirmacion"); }), 5);
  desks.push_back(office.open());
  for (int i = 1; i <= MANY; ++i) define(*desks.back(), std::to_string(i));
  take(*desks.back());
  bench::within("una orden junto a quien tiene 10.000",
                bench::milliseconds(5, [&] { commandSession(office, "Confirmacion"); }), 10);
  return 0;
}
