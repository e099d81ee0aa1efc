// rooms: registers store
// Eight desks that write entries into one file with short pauses: how long the unluckiest waits.

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "benches/Folder.h"
#include "store/Open.h"
#include "store/Transaction.h"

namespace {

using namespace fidaleon;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kDesks = 8;
constexpr int kEntries = 60;

/// By the clock, in milliseconds: what is waited for costs no processor time.
double longestWait(const std::filesystem::path& file, int desk) {
  const auto connection = store::openDatabase(file, store::parishSchema());
  double longest = 0;
  for (int n = 1; n <= kEntries; ++n) {
    const auto start = Clock::now();
    store::Transaction whole(*connection);
    bench::insertBaptism(*connection, n, 1 + desk, n);
    whole.commit();
    longest =
        std::max(longest, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    std::this_thread::sleep_for(20ms);
  }
  return longest;
}

/// The desk runs in a program of its own, and tells through the pipe.
void startDesk(const std::filesystem::path& file, int desk, int pipe) {
  if (fork() != 0) return;
  double longest = 1e6;  // as long as it says nothing, it has not come to its end
  try {
    longest = longestWait(file, desk);
  } catch (const store::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  const bool told = write(pipe, &longest, sizeof longest) == sizeof longest;
  _exit(told ? 0 : 1);
}

}  // namespace

int main() {
  const bench::Folder folder;
  const auto file = folder / "parroquia.fidaleon";
  store::createDatabase(file, store::parishSchema()).reset();
  int ends[2];
  if (pipe(ends) != 0) return 1;
  for (int desk = 0; desk < kDesks; ++desk) startDesk(file, desk, ends[1]);
  double worst = 0;
  for (int desk = 0; desk < kDesks; ++desk) {
    double longest = 1e6;
    if (read(ends[0], &longest, sizeof longest) != sizeof longest) return 1;
    worst = std::max(worst, longest);
    wait(nullptr);
  }
  bench::within("8 puestos anotan a la vez con pausas de 20 ms: la espera más larga", worst, 500);
}
