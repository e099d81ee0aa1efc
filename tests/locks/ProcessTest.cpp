#include <chrono>

#include "forms/ScriptedUser.h"
#include "locks/MeetingPlaces.h"
#include "locks/ProcesarBloqueos.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::ProcessTest {

struct Workstation {
  explicit Workstation(const TempDirectory& directory, const char* name)
      : session(user, clock, name, name) {
    user.answerAnything(Answer::Ok);
    session.Inicializar(directory.path().string());
  }
  long lock(const std::string& table, const std::string& record = {}) {
    FDAPI::DefinicionBloqueo d;
    d.strTabla = table;
    d.strRegistro = record;
    session.DefinirBloqueo(d);
    return session.lngEfectuarBloqueos();
  }
  /// Whether it is free within a second.
  bool lockSoon(const std::string& table, const std::string& record = {}) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    while (lock(table, record) != 0)
      if (std::chrono::steady_clock::now() > until) return false;
    return true;
  }
  forms::ScriptedUser user;
  support::FixedClock clock{text::Date{2026, 11, 22}};
  locks::ProcesarBloqueos session;
};

class TwoProcesses : public ::testing::TestWithParam<Place> {
 protected:
  TwoProcesses() {
    if (GetParam() == Place::Server) meetOnServer(directory.path());
  }
  TempDirectory directory;
};
MEETING_PLACES(TwoProcesses);

TEST_P(TwoProcesses, OneHolds_TheOtherIsRefusedUntilItIsKilled) {
  OtherProcess holder([&](auto& self) {
    Workstation there(directory, "sacristia");
    self.say(there.lock("Bautismo", "7") == 0 ? 'y' : 'n');
    for (;;) ::pause();
  });
  ASSERT_EQ(holder.hear(), 'y');
  Workstation here(directory, "despacho");
  EXPECT_EQ(here.lock("Bautismo", "7"), FDAPI::BloqueoRegistro);
  ASSERT_FALSE(here.user.messages().empty());
  EXPECT_THAT(here.user.messages()[0].text, HasSubstr("sacristia, en el equipo sacristia"));
  EXPECT_EQ(here.lock("Bautismo", "8"), 0);
  holder.kill();
  EXPECT_TRUE(here.lockSoon("Bautismo", "7"));
}

// Killed at any instant of taking and giving back: never a lock left, never a broken directory.
TEST_P(TwoProcesses, KilledWhileTakingAndReleasing_LeaveNoLock) {
  for (int round = 0; round < 40; ++round) {
    OtherProcess busy([&](auto& self) {
      Workstation there(directory, "sacristia");
      self.say();
      for (;;) {
        there.lock("Bautismo");
        there.lock("Confirmacion", "3");
        there.session.LiberarBloqueo("Bautismo");
        there.session.LiberarBloqueos();
      }
    });
    ASSERT_EQ(busy.hear(), 'y');
    ::usleep(static_cast<useconds_t>(137 * round % 2000));
    busy.kill();
    Workstation here(directory, "despacho");
    ASSERT_TRUE(here.lockSoon("Bautismo")) << round;
    ASSERT_TRUE(here.lockSoon("Confirmacion", "3")) << round;
  }
}

// Each adds one to a number in a file under the lock; none may get lost.
TEST_P(TwoProcesses, UnderOneExclusiveLock_WorkOneAfterTheOther) {
  constexpr int EACH = 100;
  const std::string counter = (directory.path() / "cuenta").string();
  std::ofstream(counter) << 0;
  const auto work = [&](auto& self) {
    Workstation there(directory, "uno");
    for (int done = 0; done < EACH;) {
      if (there.lock("Bautismo") != 0) continue;
      int n = 0;
      std::ifstream(counter) >> n;
      std::ofstream(counter) << n + 1;
      ++done;
      there.session.LiberarBloqueos();
    }
    self.say();
  };
  OtherProcess a(work);
  OtherProcess b(work);
  ASSERT_EQ(a.hear(), 'y');
  ASSERT_EQ(b.hear(), 'y');
  int n = 0;
  std::ifstream(counter) >> n;
  EXPECT_EQ(n, 2 * EACH);
}

}  // namespace fidaleon::tests::ProcessTest
