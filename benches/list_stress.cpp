// rooms: core_facade registers support store
// Eight workstations on one parish file. Arguments: the seconds, 10 otherwise, and the register,
// "Bautismo" otherwise.

#include "benches/Bench.h"
#include "benches/BookStress.h"
#include "benches/Folder.h"

int main(int argc, char** argv) {
  using namespace fidaleon;
  const double seconds = argc > 1 ? std::atof(argv[1]) : 10;
  const stress::Kind* kind = stress::KINDS;
  for (const stress::Kind& other : stress::KINDS)
    if (argc > 2 && other.sacrament.palabra == std::string(argv[2])) kind = &other;
  const bench::Folder folder;
  stress::Outcome o;
  try {
    o = stress::run(folder.path(), 8, {1 << 30, seconds}, *kind);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
  }
  const auto none = [](const char* what, int count) {
    bench::line(what, std::to_string(count), "-", "-", "0", count == 0);
  };
  bench::line(std::string("8 puestos a la vez en un fichero, ") + kind->sacrament.palabra +
                  ": partidas por segundo",
              bench::shown(o.stored / seconds, ""), "-", "-", "-", o.stored > 0);
  none("posiciones repetidas en el libro nuevo", o.repeated);
  none("posiciones saltadas en el libro nuevo", o.missing);
  none("partidas perdidas o de más",
       std::abs(o.entered - o.stored) + std::abs(o.stored - o.listed));
  none("puestos que acabaron mal", o.faults);
  none("ficheros dañados", o.whole ? 0 : 1);
  return o.repeated == 0 && o.faults == 0 && o.entered == o.stored && o.stored == o.listed &&
                 o.whole
             ? 0
             : 1;
}
