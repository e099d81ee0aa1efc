// What a server adds to a meeting place: links that are lost and come back.

#include "locks/MeetingPlaces.h"
#include "locks/ServerMeeting.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::ServerMeetingTest {

using namespace locks;

HeldEntry lockOf(const std::string& who, const std::string& record) {
  return {{record.empty() ? Kind::Table : Kind::Record, "Bautismo", record, 0},
          {who, who, 4711, "22/11/2026 a las 10:30"}};
}

/// A program with one session.
struct Desk {
  explicit Desk(std::string name)
      : who(std::move(name)),
        seat(std::make_shared<Seat>(meetingServer(), "", std::chrono::milliseconds(50))) {}
  bool take(MeetingPlace& session, const std::string& record) const {
    LockSet wanted;
    wanted.add(lockOf(who, record));
    return !session.take(wanted, {lockOf(who, record)});
  }
  bool take(const std::string& record) { return take(meeting, record); }
  /// Why nothing can be stored; empty when it can. Meanwhile the transaction is open.
  std::string whyNotStored(const std::function<void()>& meanwhile = [] {}) {
    store::Link link(meetingServer());
    try {
      try {
        link.run("BEGIN; " + seat->statement());
      } catch (const store::Error&) {
        seat->lost();
        link.run("ROLLBACK; BEGIN; " + seat->statement());
      }
    } catch (const store::Error& e) {
      return e.what();
    }
    meanwhile();
    return {};
  }
  std::string who;
  std::shared_ptr<Seat> seat;
  ServerMeeting meeting{seat};
};

/// The server, or the way to it, was gone: all who have locks there have lost their links.
void cutLinks() {
  store::Link(meetingServer())
      .run(
          "SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity "
          "WHERE datname = current_database() AND application_name LIKE '%bloqueos)'");
}

std::string whyNot(const std::function<void()>& act) {
  try {
    act();
  } catch (const Unusable& e) {
    return e.what();
  }
  return {};
}

TEST(Server, LocksLostForAWhileThatNobodyHasTaken_AreHeldAgain) {
  Desk ana("ana"), luis("luis");
  ServerMeeting more(ana.seat);
  ASSERT_TRUE(ana.take("7") && ana.take(more, "8"));
  EXPECT_FALSE(ana.take(more, "7")) << "two sessions of one program";
  cutLinks();
  EXPECT_EQ(ana.whyNotStored([&] { EXPECT_FALSE(luis.take("7")) << "it is being stored"; }), "");
  EXPECT_TRUE(ana.take("9"));
  EXPECT_FALSE(luis.take("7") || luis.take("8"));
  more.withdraw();
  EXPECT_TRUE(luis.take("8"));
}

TEST(Server, OverLocksThatAnotherHasTakenMeanwhile_NothingIsStored) {
  Desk ana("ana"), luis("luis");
  ASSERT_TRUE(ana.take("7") && ana.take("8"));
  cutLinks();
  ASSERT_TRUE(luis.take("7"));
  EXPECT_THAT(ana.whyNotStored(), AllOf(HasSubstr("la partida de bautismo la tiene luis"),
                                        HasSubstr("no se ha guardado nada")));
  luis.meeting.withdraw();
  EXPECT_THAT(ana.whyNotStored(), HasSubstr("otro ha abierto")) << "he may have changed it";
  EXPECT_THAT(whyNot([&] { ana.take("9"); }), HasSubstr("otro ha abierto"));
  EXPECT_FALSE(luis.take("8")) << "the rest is kept until the window closes";
  ana.meeting.withdraw();
  EXPECT_TRUE(ana.take("7"));
  EXPECT_EQ(ana.whyNotStored(), "");
}

TEST(Server, WhatIsGivenBack_GoesToTheFirstOfThoseWhoWait) {
  Desk ana("ana"), luis("luis"), eva("eva");
  const auto anaWaitsTill = [](const char* moment) {
    store::Link(meetingServer()).run(std::string("UPDATE bloqueos_espera SET hasta = ") + moment);
  };
  ASSERT_TRUE(eva.take("7"));
  ASSERT_FALSE(ana.take(""));
  anaWaitsTill("'infinity'");
  EXPECT_TRUE(luis.take("8")) << "she could not have it yet";
  luis.meeting.withdraw();
  eva.meeting.withdraw();
  EXPECT_FALSE(luis.take("8"));
  anaWaitsTill("clock_timestamp()");
  EXPECT_TRUE(luis.take("8")) << "she is gone";
  luis.meeting.withdraw();
  EXPECT_TRUE(ana.take(""));
}

TEST(Server, WhoWorksAloneWhileADeskIsCutOff_TakesAllThatItHad) {
  Desk ana("ana"), luis("luis");
  ServerMeeting presence(ana.seat);
  const HeldEntry here{{Kind::SharedTable, "Parroquia abierta", {}, 0}, lockOf("ana", "").holder};
  presence.join(presence.enter(), {here});
  ASSERT_TRUE(ana.take("7"));
  cutLinks();
  {
    const auto guard = luis.meeting.enter();
    EXPECT_TRUE(luis.meeting.sessions(guard).empty());
    EXPECT_THAT(ana.whyNotStored(), HasSubstr("no se ha guardado nada"));
  }
  const auto seen = luis.meeting.sessions(luis.meeting.enter());
  ASSERT_EQ(seen.size(), 1U) << "the program is back, what it had open is not";
  EXPECT_EQ(seen[0].held[0].entry, here.entry);
}

TEST(Server, GuardThatIsHeldForLong_SaysWhatGoesOnAndIsLostWithItsLink) {
  Desk ana("ana"), luis("luis");
  HeldEntry tidying = lockOf("ana", "");
  tidying.entry.table = "está ordenando los libros";
  auto guard = ana.meeting.enter();
  EXPECT_THAT(whyNot([&] { luis.take("7"); }), HasSubstr("no responde"));
  guard.announce(tidying);
  EXPECT_THAT(whyNot([&] { luis.take("7"); }),
              HasSubstr("Hay que esperar: ana, en el equipo ana, desde el 22/11/2026 a las 10:30, "
                        "está ordenando los libros."));
  EXPECT_EQ(ana.whyNotStored(), "");
  cutLinks();
  EXPECT_THAT(ana.whyNotStored(), HasSubstr("a solas"));
  EXPECT_TRUE(luis.take("7"));
}

TEST(Server, SetOfLocks_IsTakenByOneJourneyAndGivenBackByOne) {
  Desk ana("ana");
  LockSet wanted;
  for (int i = 1; i <= 1000; ++i) wanted.add(lockOf("ana", std::to_string(i)));
  const auto before = ana.seat->journeys();
  EXPECT_FALSE(ana.meeting.take(wanted, {wanted.all().begin(), wanted.all().end()}));
  EXPECT_EQ(ana.seat->journeys() - before, 1);
  ana.meeting.withdraw();
  EXPECT_EQ(ana.seat->journeys() - before, 2);
}

}  // namespace fidaleon::tests::ServerMeetingTest
