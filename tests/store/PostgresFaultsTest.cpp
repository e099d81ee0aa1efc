// What becomes of a transaction when the server, or the way to it, fails.

#include "files/Machine.h"
#include "store/FailingEngine.h"
#include "store/schema/Installer.h"
#include "support/NewDatabase.h"
#include "support/Relay.h"

namespace fidaleon::store::PostgresFaultsTest {

using tests::PostgresDatabase;
using tests::Relay;

class PostgresFaults : public testing::Test {
 protected:
  void add(const std::string& name) {
    connection.Execute("INSERT INTO Cargo (Nombre) VALUES ('" + name + "')");
  }
  /// As another desk sees them.
  std::string names() {
    Link other(database.address());
    return std::string(other
                           .ask("SELECT coalesce(string_agg(\"Nombre\", '' ORDER BY \"IDCargo\"), "
                                "'') FROM \"Cargo\"")
                           .text(0, 0));
  }
  void endAllLinks() {
    tests::PostgresCluster::running().link().ask(
        "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = $1",
        {database.address().database});
  }

  PostgresDatabase database{tests::modelOf(parishSchema())};
  tests::TempDirectory folder;
  Relay relay{database.address(), folder.path()};
  Connection connection{std::make_unique<PostgresEngine>(relay.address()), parishSchema(),
                        "/tmp/fidaleon.mdb"};
};

TEST_F(PostgresFaults, ServerRestarted_CostsOnlyTheTransactionThatWasOpen) {
  add("a");
  endAllLinks();
  add("b");
  connection.BeginTrans();
  add("c");
  endAllLinks();
  std::string words;
  EXPECT_EQ(kindOf([&] { connection.Execute("SELECT * FROM Cargo"); }, &words),
            ErrorKind::Connection);
  EXPECT_EQ(kindOf([&] { connection.CommitTrans(); }), ErrorKind::Other);
  connection.RollbackTrans();
  connection.BeginTrans();
  add("c");
  connection.CommitTrans();
  EXPECT_EQ(names(), "abc");
}

TEST_F(PostgresFaults, WhatTheServerDoesByItself_ChangesNothing) {
  const std::string name = Link::name(database.address().database);
  Link& cluster = tests::PostgresCluster::running().link();
  cluster.run("ALTER DATABASE " + name + " SET default_transaction_isolation TO serializable");
  cluster.run("ALTER DATABASE " + name + " SET statement_timeout TO '1s'");
  Link(database.address()).run("UPDATE pg_collation SET collversion = '1' WHERE collname = 'es'");
  PostgresEngine engine(database.address());
  EXPECT_TRUE(engine.isTextOrderOld()) << "as after another version of ICU";
  Installer(engine, parishSchema()).upgrade();
  EXPECT_FALSE(engine.isTextOrderOld());
  EXPECT_EQ(engine.link().ask("SHOW statement_timeout").text(0, 0), "0");
  engine.begin(0);
  engine.run("INSERT INTO \"Cargo\" (\"Nombre\") VALUES ('a')");
  EXPECT_EQ(engine.link().ask("SHOW transaction_isolation").text(0, 0), "read committed");
  engine.rollback(0);
}

TEST_F(PostgresFaults, CutAtTheEndOfATransaction_NeitherDoublesNorLosesIt) {
  relay.stayOpen();
  const auto store = [&](const std::string& name, Relay::Cut cut) {
    relay.cutAt(Relay::COMMIT, cut);
    connection.BeginTrans();
    add(name);
    connection.CommitTrans();
  };
  store("a", Relay::Cut::Behind);
  EXPECT_EQ(names(), "a") << "it was stored, and nothing is told";
  EXPECT_EQ(kindOf([&] { store("b", Relay::Cut::Before); }), ErrorKind::Connection);
  connection.RollbackTrans();
  store("b", Relay::Cut::None);
  EXPECT_EQ(names(), "ab");
  relay.cutAt(Relay::COMMIT, Relay::Cut::Behind);
  add("c");
  EXPECT_EQ(names(), "abc") << "also a statement by itself";
}

TEST_F(PostgresFaults, CutAndNoServerToAsk_IsSettledBeforeAnythingElseIsStored) {
  connection.BeginTrans();
  add("a");
  relay.cutAt(Relay::COMMIT, Relay::Cut::Behind);
  EXPECT_EQ(kindOf([&] { connection.CommitTrans(); }), ErrorKind::Connection);
  connection.RollbackTrans();
  EXPECT_EQ(kindOf([&] { add("a"); }), ErrorKind::Connection) << "nobody can be asked yet";
  relay.open();
  std::string words;
  EXPECT_EQ(kindOf([&] { connection.BeginTrans(); }, &words), ErrorKind::Other);
  EXPECT_NE(words.find("sí quedó guardado"), std::string::npos) << words;
  EXPECT_EQ(names(), "a");
  add("b");
  EXPECT_EQ(names(), "ab");
}

TEST_F(PostgresFaults, DiskFullOnTheServer_IsToldAndUndoesTheWhole) {
  Link(database.address())
      .run(
          "CREATE FUNCTION lleno() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE EXCEPTION "
          "'no' USING ERRCODE = '53100'; END $$; CREATE TRIGGER lleno BEFORE INSERT ON \"Grupo\" "
          "FOR EACH ROW EXECUTE FUNCTION lleno()");
  connection.BeginTrans();
  add("a");
  EXPECT_EQ(kindOf([&] {
              connection.Execute("INSERT INTO Grupo (Nombre) VALUES ('x')");
              connection.Execute("SELECT * FROM Grupo");
            }),
            ErrorKind::DiskFull);
  EXPECT_THROW(connection.CommitTrans(), Error);
  connection.RollbackTrans();
  EXPECT_EQ(names(), "");
}

TEST(PostgresUpgrade, OfTwoAtOnce_OneWaitsAndFindsItDone) {
  const auto version = [](int n) {
    Table table("Persona");
    table.counter("ID").texts({"Nombre"});
    if (n > 1) table.from(2).longs({"Edad"}).index({"Edad"});
    return Schema("Prueba", n, {table});
  };
  const PostgresDatabase database;
  PostgresEngine one(database.address()), two(database.address());
  Installer(one, version(1)).create();
  Link keeper(database.address());
  keeper.run("SELECT pg_advisory_lock(1330, 2)");
  two.run("SET lock_timeout TO '20ms'");
  std::string words;
  EXPECT_EQ(kindOf([&] { Installer(two, version(2)).upgrade(); }, &words), ErrorKind::Busy);
  EXPECT_NE(words.find("poniendo al día"), std::string::npos) << words;
  two.run("SET lock_timeout TO '4s'");
  const auto upgrade = [&](PostgresEngine& engine) {
    Installer(engine, version(2)).upgrade();
    engine.run("INSERT INTO \"Persona\" (\"Edad\") VALUES (7)");
  };
  std::thread other([&] { EXPECT_NO_THROW(upgrade(two)); });
  std::thread free([&] {
    while (keeper.ask("SELECT count(*) FROM pg_locks WHERE NOT granted").integer(0, 0) < 2)
      usleep(1000);
    keeper.run("SELECT pg_advisory_unlock(1330, 2)");
  });
  EXPECT_NO_THROW(upgrade(one));
  other.join();
  free.join();
  EXPECT_EQ(keeper.ask("SELECT sum(\"Edad\") FROM \"Persona\"").integer(0, 0), 14);
  EXPECT_EQ(kindOf([&] { Installer(two, version(1)).upgrade(); }), ErrorKind::NewerSchema);
}

}  // namespace fidaleon::store::PostgresFaultsTest
