// A workstation that dies with a book open.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>

#include "../../benches/BookStress.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {
namespace {

constexpr const char* DIALOG = "frmPropiedadesLibroBautismo";

/// Opens the list of the book and an entry in it, says so, and stays there.
class Sleeper : public forms::ScriptedUser {
 public:
  explicit Sleeper(int pipe) : pipe_(pipe) {}
  void showModal(forms::Form& form) override {
    std::vector<std::string> problems;
    forms::FormDriver d(form, problems);
    if (form.name() == DIALOG) {
      form.focusFirst();
      d.tab("mstLibro", 1);
      d.click("cmdPartidas(0)");
    }
    const char ready = form.name() == DIALOG ? 'n' : 'y';
    if (::write(pipe_, &ready, 1) == 1)
      for (;;) ::pause();
  }

 private:
  int pipe_;
};

struct Station {
  Station(forms::UserInterface& u, const std::filesystem::path& file)
      : user(u), parish(store::openDatabase(file, store::parishSchema())) {}
  void openBook() { nucleo.PropiedadesLibro(*parish, 1, config, "LibrosBautismo"); }

  forms::UserInterface& user;
  FDAPI::cConfig config{"Fidaleon", "", "ana", "Castellano", false};
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  Entorno entorno{user, host, settings, clock, {}};
  cNucleo nucleo{entorno};
  std::unique_ptr<store::Connection> parish;
};

/// Whether the book can be changed.
bool bookIsFree(const std::filesystem::path& file) {
  forms::ScriptedUser user;
  user.answerAnything(forms::Answer::Ok);
  Station station(user, file);
  bool free = false;
  user.expectForm(DIALOG, [&](forms::FormDriver& d) {
    free = d.enabled("cmdBoton(0)");
    if (free) {
      d.tab("mstLibro", 1);
      user.expectForm("frmPartidaBautismo", [](forms::FormDriver& e) { e.escape(); });
      d.click("cmdPartidas(0)");
    }
    d.escape();
  });
  station.openBook();
  EXPECT_THAT(user.problems(), ::testing::IsEmpty());
  return free;
}

TEST(BookOfAKilledWorkstation, IsFreeWithinASecond) {
  const TempDirectory directory;
  const std::filesystem::path file = directory.path() / "parroquia.fid";
  stress::createParish(file);
  int said[2];
  ASSERT_EQ(::pipe(said), 0);
  const pid_t victim = ::fork();
  if (victim == 0) {
    Sleeper user(said[1]);
    Station(user, file).openBook();
    ::_exit(1);
  }
  char ready = 'n';
  EXPECT_EQ(::read(said[0], &ready, 1), 1);
  EXPECT_EQ(ready, 'y');
  EXPECT_FALSE(bookIsFree(file));
  ::kill(victim, SIGKILL);
  ::waitpid(victim, nullptr, 0);
  const auto dead = std::chrono::steady_clock::now();
  EXPECT_TRUE(bookIsFree(file));
  EXPECT_LT(std::chrono::steady_clock::now() - dead, std::chrono::seconds(1));
  for (const int end : said) ::close(end);
}

}  // namespace
}  // namespace fidaleon::tests
