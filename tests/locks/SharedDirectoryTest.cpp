// Where workstations meet, and where they cannot see each other.

#include <filesystem>
#include <fstream>
#include <system_error>

#include "locks/SharedDirectory.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::SharedDirectoryTest {

namespace fs = std::filesystem;
using namespace locks;

constexpr std::chrono::milliseconds SHORT{20};

Maker otherMachine() {
  return {"a1", "b2", "c3", 4711, 1};
}

HeldEntry work(const std::string& host) {
  return {{Kind::Table, "Bautismo", {}, 0}, {"ana", host, 4711, "22/11/2026 a las 10:30"}};
}

/// A workstation whose locks, and no others, can be seen from it.
Vantage from(const std::string& host, const Maker& self) {
  Vantage view;
  view.self = self;
  view.reach = [](const fs::path&) { return Reach::OneMachine; };
  view.seesLock = [host](const File& file) {
    const std::string content = file.read();
    return file.lockedByOther() && (content.empty() || content.find(host) != std::string::npos);
  };
  return view;
}

class Meeting : public ::testing::Test {
 protected:
  SharedDirectory at(const Vantage& view) const {
    return SharedDirectory(folder.path(), SHORT, view);
  }
  SharedDirectory here() const { return at(from("DESPACHO", thisProgram())); }
  SharedDirectory there() const { return at(from("SACRISTIA", otherMachine())); }
  int files() const {
    int n = 0;
    for (const auto& f : fs::directory_iterator(folder.path()))
      n += f.path().filename().string().starts_with(SharedDirectory::SESSION_PREFIX);
    return n;
  }
  static std::size_t listed(const SharedDirectory& place) {
    std::size_t all = 0;
    for (const auto& session : place.sessions(place.enter())) all += session.held.size();
    return all;
  }
  static std::string whyNot(const std::function<void()>& act) {
    try {
      act();
    } catch (const Unusable& e) {
      return e.what();
    }
    ADD_FAILURE() << "nothing stood in the way";
    return {};
  }
  TempDirectory folder;
};

TEST_F(Meeting, WhereOneCannotSeeTheOther_ThereIsOneWorkstation) {
  SharedDirectory first = there();
  SharedDirectory second = here();
  ASSERT_TRUE(first.join(first.enter(), {work("SACRISTIA")}));
  EXPECT_THROW(second.join(second.enter(), {work("DESPACHO")}), UnseenOther);
  const std::string why = whyNot([&] { listed(second); });
  EXPECT_THAT(why, HasSubstr("ya trabaja ana, en el equipo SACRISTIA"));
  EXPECT_THAT(why, HasSubstr("de un servidor que guarde los bloqueos"));
  EXPECT_EQ(files(), 1) << "nothing of another machine is swept, and nothing stays of the refused";
  EXPECT_EQ(listed(first), 0U);

  second.dismissUnseen(second.enter());  // its user knows that nobody is there
  EXPECT_TRUE(second.join(second.enter(), {work("DESPACHO")}));
  EXPECT_THROW(listed(first), UnseenOther) << "but somebody was";
}

TEST_F(Meeting, WhatIsNotSeen_IsSweptOnlyWhenItHasCertainlyEnded) {
  const Maker self = thisProgram();
  Maker gone = self;
  gone.process = 0x7fffffff;
  Maker numberUsedAgain = self;
  numberUsedAgain.started += 1;
  Maker beforeTheRestart{self.machine, "otro", "1", 1, 1};
  Maker elsewhere = self;
  elsewhere.space = "1";
  const struct {
    const char* what;
    Maker left;
    bool swept;
  } cases[] = {{"a process that is gone", gone, true},
               {"a number that is used again", numberUsedAgain, true},
               {"before the machine was started again", beforeTheRestart, true},
               {"this program, by another mount", self, false},
               {"in a container of this machine", elsewhere, false},
               {"another machine", otherMachine(), false}};
  for (const auto& c : cases) {
    {
      SharedDirectory left = at(from("SACRISTIA", c.left));
      left.publish({work("SACRISTIA")});
      const SharedDirectory looks = here();
      if (c.swept)
        EXPECT_EQ(listed(looks), 0U) << c.what;
      else
        EXPECT_THROW(listed(looks), UnseenOther) << c.what;
      left.withdraw();
    }
    EXPECT_EQ(files(), 0);
  }
}

TEST_F(Meeting, ALivingProgramWhoseLockIsNotSeen_ProvesThatLocksAreHidden) {
  SharedDirectory first = here();
  first.publish({work("SACRISTIA")});
  Vantage trusting = from("DESPACHO", thisProgram());
  trusting.reach = [](const fs::path&) { return Reach::Everywhere; };
  const SharedDirectory second = at(trusting);
  EXPECT_THROW(listed(second), UnseenOther);
  first.withdraw();
  EXPECT_EQ(listed(second), 0U);
}

TEST_F(Meeting, WhereNoLockIsSeenAtAll_NobodyCanCome) {
  Vantage blind;
  blind.seesLock = [](const File&) { return false; };
  Vantage mute;
  mute.seesLock = [](const File&) -> bool {
    throw std::system_error(EIO, std::generic_category());
  };
  for (const auto& [view, why] :
       {std::pair(blind, "la unidad no guarda los bloqueos"), std::pair(mute, "el disco falla")}) {
    SharedDirectory directory = at(view);
    EXPECT_THAT(whyNot([&] { directory.join(directory.enter(), {work("DESPACHO")}); }),
                HasSubstr(why));
    EXPECT_EQ(files(), 0);
  }
}

TEST_F(Meeting, ComingWithAFullDisk_IsKnownThoughNotByName) {
  SharedDirectory directory = at({});
  const SharedDirectory other = at({});
  bool told = true;
  std::string again;
  {
    const FullDisk full(0);
    told = directory.join(directory.enter(), {work("DESPACHO")});
    again = whyNot([&] { directory.publish({work("DESPACHO")}); });
    SharedDirectory third = at({});
    whyNot([&] { third.publish({work("DESPACHO")}); });
    EXPECT_EQ(files(), 1) << "who could not come leaves nothing";
  }
  EXPECT_FALSE(told);
  EXPECT_THAT(again, HasSubstr("el disco está lleno"));
  ASSERT_EQ(listed(other), 0U);
  EXPECT_EQ(other.sessions(other.enter())[0].holder.process, ::getpid());
  directory.publish({work("DESPACHO")});
  EXPECT_EQ(listed(other), 1U) << "what could not be listed is listed now";
}

TEST_F(Meeting, GuardThatIsHeldForLong_IsNotWaitedForWithoutEndAndSaysWhatGoesOn) {
  const SharedDirectory directory = at({});
  HeldEntry tidying = work("DESPACHO");
  tidying.entry.table = "está ordenando los libros";
  {
    auto guard = directory.enter();
    EXPECT_THAT(whyNot([&] { directory.enter(); }), HasSubstr("no responde"));
    guard.announce(tidying);
    EXPECT_EQ(whyNot([&] { directory.enter(); }),
              "Hay que esperar: ana, en el equipo DESPACHO, desde el 22/11/2026 a las 10:30, está "
              "ordenando los libros.\nVuelva a intentarlo cuando termine.");
  }
  std::ofstream(folder.path() / SharedDirectory::GUARD_FILE) << encode({tidying});  // was killed
  const auto guard = directory.enter();
  EXPECT_THAT(whyNot([&] { directory.enter(); }), HasSubstr("no responde"));
}

TEST(LocksOfADisk, ReachOtherMachinesOnlyWhereTheSystemPassesThemOn) {
  constexpr auto ONE = Reach::OneMachine;
  constexpr auto ALL = Reach::Everywhere;
  const struct {
    std::uint32_t kind;
    const char* options;
    Reach reach;
  } cases[] = {{0xEF53, "rw,relatime", ALL},
               {0x65735546, "rw,user_id=0", ONE},
               {0x6969, "rw,vers=4.2,local_lock=none", ALL},
               {0x6969, "rw,nolock,local_lock=all", ONE},
               {0x6969, "rw,vers=3,local_lock=flock", ALL},
               {0x6969, "rw,vers=3,local_lock=posix", ONE},
               {0xFE534D42, "rw,vers=3.1.1,cache=strict", ALL},
               {0xFF534D42, "rw,nobrl", ONE},
               {0x01021997, "rw,trans=virtio", ONE}};
  for (const auto& c : cases) EXPECT_EQ(reachOf(c.kind, c.options), c.reach) << c.options;
  EXPECT_EQ(reachOf(fs::path("/no/existe")), ONE) << "what cannot be looked at";
  EXPECT_EQ(reachOf(TempDirectory().path()), ALL);
}

}  // namespace fidaleon::tests::SharedDirectoryTest
