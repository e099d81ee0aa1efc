// rooms: locks support
// A whole lock session as each command of the program makes it, beside the bare system calls.

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <vector>

#include "benches/Bench.h"
#include "forms/ScriptedUser.h"
#include "locks/OfdLock.h"
#include "locks/ProcesarBloqueos.h"
#include "support/Clocks.h"

namespace {

using namespace fidaleon;

constexpr int ROUNDS = 2000;

void commandSession(forms::UserInterface& ui, const Clock& clock, const std::string& directory) {
  locks::ProcesarBloqueos session(ui, clock, "ana", "despacho");
  session.Inicializar(directory);
  for (const char* table : {"Institucion", "Provincia", "Municipio"}) {
    FDAPI::DefinicionBloqueo shared;
    shared.strTabla = table;
    shared.blnBloqueoParcialTabla = true;
    session.DefinirBloqueo(shared);
  }
  FDAPI::DefinicionBloqueo entries;
  entries.strTabla = "Bautismo";
  session.DefinirBloqueo(entries);
  if (session.lngEfectuarBloqueos() != 0) std::abort();
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
  std::string directory = (std::filesystem::temp_directory_path() / "fidaleon-XXXXXX").string();
  if (!::mkdtemp(directory.data())) return 1;
  forms::ScriptedUser user;
  support::FixedClock clock{text::Date{2026, 11, 22}};
  const auto times = bench::inTurn(
      5,
      [&] {
        for (int i = 0; i < ROUNDS; ++i) commandSession(user, clock, directory);
      },
      [&] {
        for (int i = 0; i < ROUNDS; ++i) bareSession(directory);
      });
  std::filesystem::remove_all(directory);
  bench::ratio("2.000 sesiones de bloqueo de una orden", times, 3);
  return 0;
}
