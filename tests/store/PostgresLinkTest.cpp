// The link to a server, against a real one: what is told when it does not come about or ends.

#include "store/FailingEngine.h"
#include "support/PostgresCluster.h"

namespace fidaleon::store::PostgresLinkTest {

using tests::PostgresCluster;
using tests::PostgresDatabase;

TEST(PostgresLink, Refusals_AreToldApart) {
  PostgresCluster& cluster = PostgresCluster::running();
  cluster.link().run(
      "DO $$ BEGIN CREATE ROLE con_clave LOGIN PASSWORD 'abierto'; EXCEPTION WHEN duplicate_object "
      "OR unique_violation THEN END $$");
  ServerAddress nowhere = cluster.address();
  nowhere.host = "/nowhere";
  ServerAddress known = cluster.address();
  known.user = "con_clave";
  int number = 0;
  const auto kind = [&](const ServerAddress& address, const std::string& password = {}) {
    try {
      const Link link(address, password);
    } catch (const Error& error) {
      number = error.number();
      return error.kind();
    }
    return ErrorKind::Other;
  };
  EXPECT_EQ(kind(nowhere), ErrorKind::Connection);
  EXPECT_NE(number, kWrongPassword);
  EXPECT_EQ(kind(cluster.address("ninguna")), ErrorKind::Missing);
  EXPECT_EQ(kind(known, "cerrado"), ErrorKind::Connection);
  EXPECT_EQ(number, kWrongPassword);
  EXPECT_EQ(kind(known, "abierto"), ErrorKind::Other) << "that is the password";
  std::string words;
  EXPECT_EQ(kindOf([] { Link::requireRecent(130014); }, &words), ErrorKind::NotADatabase);
  EXPECT_NE(words.find("tiene PostgreSQL 13: hace falta"), std::string::npos);
}

TEST(PostgresLink, Journeys_AreAsManyAsAnswersWaitedFor) {
  const PostgresDatabase database;
  Link link(database.address());
  const auto before = link.journeys();
  link.carryOut(
      {{"", "BEGIN"}, {"", "CREATE TEMP TABLE t (n int)"}, {"", "INSERT INTO t VALUES (7)"}});
  const Answer answer = link.carryOut({{"s", "SELECT n, $1::text FROM t", {"ñ"}}});
  EXPECT_EQ(answer.integer(0, 0), 7);
  EXPECT_EQ(answer.text(0, 1), "ñ");
  EXPECT_EQ(link.journeys() - before, 2);
  EXPECT_EQ(kindOf([&] {
              link.carryOut({{"", "INSERT INTO t VALUES ('a')"}, {"", "COMMIT"}});
            }),
            ErrorKind::Constraint);
  EXPECT_TRUE(link.isBroken());
}

TEST(PostgresLink, LostInTheMiddle_SaysSoAndIsRenewed) {
  const PostgresDatabase database;
  Link link(database.address());
  const auto end = [&] {
    PostgresCluster::running().link().ask(
        "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = $1",
        {database.address().database});
  };
  end();
  EXPECT_EQ(kindOf([&] { link.ask("SELECT 1"); }), ErrorKind::Connection);
  EXPECT_FALSE(link.isOpen());
  EXPECT_EQ(kindOf([&] {
              link.carryOut({{"", "BEGIN"}, {"", "SELECT 1"}});
            }),
            ErrorKind::Connection);
  link.renew();
  EXPECT_EQ(link.ask("SELECT 1").integer(0, 0), 1);
}

TEST(PostgresLink, Address_IsReadAsItWasWritten) {
  const ServerAddress address{"archivo.diocesis.es", 5433, "parroquia", "ana", "/etc/raiz.pem"};
  EXPECT_EQ(ServerAddress::parse("# diócesis\n" + address.written()), address);
  EXPECT_FALSE(address.isThisMachine());
  for (const auto& [hosts, here] :
       {std::pair{"/run/a,127.0.0.1", true}, {"/run/a,b.es", false}, {"127.0.0.1.es", false}})
    EXPECT_EQ(ServerAddress({hosts, 5432, "p", "ana", {}}).isThisMachine(), here) << hosts;
  for (const char* broken : {"", "servidor=a\nbase=b", "servidor=a\nbase=b\nusuario=c\npuerto=0"})
    EXPECT_EQ(kindOf([&] { ServerAddress::parse(broken); }), ErrorKind::NotADatabase);
}

}  // namespace fidaleon::store::PostgresLinkTest
