// rooms: parish registers store sqlite
// What a removal and a return cost in a register of 100,000 entries: the copy before, the copies
// kept, and the way back.

#include "benches/Bench.h"
#include "benches/Folder.h"
#include "benches/Registers.h"
#include "parish/copies/SafetyCopies.h"
#include "registers/cBaseDatos.h"
#include "store/Open.h"
#include "store/Restore.h"

namespace {

using namespace fidaleon;

constexpr int ENTRIES = 100000;

double room(const app::SafetyCopies& copies) {
  double bytes = 0;
  for (const app::SafetyCopy& copy : copies.list()) bytes += static_cast<double>(copy.bytes);
  return bytes;
}

}  // namespace

int main() {
  const bench::Folder folder;
  const std::filesystem::path file = folder / "parroquia.fidaleon";
  const auto parish = store::createDatabase(file, store::parishSchema(), [](auto& c) {
    bench::FilledRegister(c, ALMACEN_BAUTISMO.forma, ENTRIES, 1000);
  });
  const app::SafetyCopies copies(folder.path());
  std::filesystem::path copy;
  const auto make = [&] { copy = copies.make(*parish, "Eliminar", app::thisMoment()); };
  bench::within("copia antes de eliminar, 100.000 partidas", bench::milliseconds(3, make), 500);
  const double back = bench::milliseconds(3, [&] {
    store::Restore restore(copy, file, store::parishSchema());
    copies.make(*parish, "Antes de volver a una copia", app::thisMoment());
    restore.run();
  });
  bench::within("vuelta a una copia", back, 1500);
  const double plain = room(copies);
  const double time = bench::milliseconds(1, [&] { copies.compressOlder([] { return true; }); });
  bench::line("sitio de las copias, comprimidas salvo dos", bench::shown(room(copies), " bytes"),
              bench::shown(plain, ""), bench::shown(room(copies) / plain, ""), "<= 0.5",
              room(copies) <= plain / 2);
  bench::within("comprimir una copia", time / (copies.list().size() - 2), 1000);
}
