// A server that is started again, and one whose replica takes its place, in the middle of work.

#include <gmock/gmock.h>

#include "files/Machine.h"
#include "store/FailingEngine.h"
#include "support/NewDatabase.h"

namespace fidaleon::store::PostgresFailoverTest {

/// A server of the test's own, gone with it.
struct Server {
  Server(const tests::TempDirectory& in, const std::string& name, const std::string& kind)
      : folder((in.path() / name).string()) {
    chmod(in.path().c_str(), 0755);  // it runs as another user
    control(kind);
  }
  ~Server() { tests::PostgresCluster::script(folder + " stop"); }
  void control(const std::string& act) const {
    if (tests::PostgresCluster::script(folder + " " + act) != 0)
      throw std::runtime_error(act + ": see " + folder + ".registro");
  }
  std::string ask(const std::string& sql) const {
    return std::string(Link({folder, 5432, "postgres", "prueba", {}}).ask(sql).text(0, 0));
  }
  std::string folder;
};

TEST(PostgresFailover, RestartAndReplica_CostOnlyTheTransactionThatWasOpen) {
  const tests::TempDirectory directory;
  const Server first(directory, "uno", "origen");
  const ServerAddress both{
      first.folder + "," + (directory.path() / "dos").string(), 5432, "postgres", "prueba", {}};
  {
    PostgresEngine engine(both);
    Installer(engine, Schema("Prueba", 1, {Table("Cargo").counter("IDCargo").texts({"Nombre"})}))
        .create();
  }
  const Server second(directory, "dos", "replica " + first.folder);
  Connection connection(std::make_unique<PostgresEngine>(both), parishSchema(), "/tmp/parroquia");
  const auto add = [&](const std::string& name) {
    connection.Execute("INSERT INTO Cargo (Nombre) VALUES ('" + name + "')");
  };
  const auto interrupted = [&](const std::string& name, const std::function<void()>& by) {
    connection.BeginTrans();
    add(name);
    by();
    std::string words;
    EXPECT_EQ(kindOf([&] { connection.CommitTrans(); }, &words), ErrorKind::Connection);
    EXPECT_THAT(words, testing::HasSubstr("vuelva a aceptar"));
    connection.RollbackTrans();
    add(name);
  };
  interrupted("a", [&] { first.control("restart"); });
  const std::string stored = first.ask("SELECT pg_current_wal_lsn()");
  while (second.ask("SELECT pg_last_wal_replay_lsn() >= '" + stored + "'") != "t") usleep(5000);
  interrupted("b", [&] {
    first.control("stop");
    second.control("promote");
  });
  EXPECT_EQ(second.ask("SELECT string_agg(\"Nombre\", '' ORDER BY \"IDCargo\") FROM \"Cargo\""),
            "ab");
}

}  // namespace fidaleon::store::PostgresFailoverTest
