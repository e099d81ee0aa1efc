// A database on its way to another place, and copies that are made of its rows.

#include "files/Machine.h"
#include "store/ChangeWatch.h"
#include "store/FailingEngine.h"
#include "store/Open.h"
#include "store/Restore.h"
#include "store/RowCounts.h"
#include "store/Transfer.h"
#include "store/postgres/ServerAccess.h"
#include "support/PostgresCluster.h"

namespace fidaleon::store::TransferTest {

namespace fs = std::filesystem;

/// To a file, or to a server.
class Transfer : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    if (GetParam()) {
      database = std::make_unique<tests::PostgresDatabase>();
      target = directory.path() / ADDRESS_FILE;
      writeAddress(target, database->address());
    }
    connection = createDatabase(source, parishSchema());
    connection->BeginTrans();
    for (int i = 0; i < 3000; ++i)
      connection->Execute("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (\"Ñuño d'Ávila " +
                          std::to_string(i) + "\", 28)");
    connection->Execute("INSERT INTO Cargo (Nombre, Descripcion) VALUES (\"Sacristán\", Null)");
    connection->Execute("INSERT INTO Cargo (Nombre, Descripcion) VALUES (\"Campanero\", \"\")");
    connection->Execute("DELETE FROM Cargo WHERE Nombre = \"Campanero\"");
    connection->Execute("DELETE FROM Provincia WHERE IDProvincia = 3");
    connection->Execute("INSERT INTO Ultimos (IDInstitucion, Encargado) VALUES (2, \"b\")");
    connection->Execute("INSERT INTO Ultimos (IDInstitucion, Encargado) VALUES (1, \"a\")");
    connection->CommitTrans();
  }
  void move(const Progress& progress = {}) {
    told.clear();
    const auto from = backendAt(source);
    const auto to = backendAt(target);
    moved = moveDatabase(
        *from, *to, parishSchema(),
        {progress, [this](const std::string& sentence) { told += sentence + "\n"; },
         [this](TransferStage, const std::string& table, std::int64_t rows) { at[table] = rows; }});
  }
  void requireSame() {
    requireSameRows(*backendAt(source)->open(), *backendAt(target)->open(), parishSchema());
  }

  tests::TempDirectory directory;
  const fs::path source = directory.path() / "aquí.fidaleon";
  std::unique_ptr<tests::PostgresDatabase> database;
  fs::path target = directory.path() / "allí.fidaleon";
  std::unique_ptr<Connection> connection;
  std::string told;
  std::map<std::string, std::int64_t> at;
  std::vector<std::int64_t> moved;
};

TEST_P(Transfer, Moved_EveryRowIsThereAndNoKeyIsGivenAgain) {
  const auto before = rowCounts(connection->engine(), parishSchema());
  move();
  requireSame();
  EXPECT_EQ(told, "");
  EXPECT_EQ(moved, before);
  EXPECT_EQ(at["Municipio"], 3000);
  EXPECT_EQ(rowCounts(connection->engine(), parishSchema()), before);
  const auto there = openDatabase(target, parishSchema());
  there->Execute("INSERT INTO Cargo (Nombre) VALUES (\"Organista\")");
  EXPECT_EQ(there->Execute("SELECT MAX(IDCargo) AS n FROM Cargo").integer("n"), 3);
  EXPECT_EQ(kindOf([&] { move(); }), ErrorKind::Constraint) << "the name is taken";
}

/// Given up at every stage in turn: there is nothing before it is whole, and it goes on.
TEST_P(Transfer, GivenUp_GoesOnWhereItStopped) {
  for (const int stage : {1, 300, 500, 700, 990}) {
    const auto stop = [&](int done) { return done < stage; };
    EXPECT_EQ(kindOf([&] { move(stop); }), ErrorKind::Cancelled);
    EXPECT_EQ(kindOf([&] { openDatabase(target, parishSchema()); }),
              GetParam() ? ErrorKind::NotADatabase : ErrorKind::Missing);
  }
  connection->Execute("UPDATE Municipio SET Nombre = \"Otro\" WHERE IDMunicipio = 5");
  move();
  EXPECT_EQ(told,
            "Se sigue donde se quedó la otra vez.\n"
            "La tabla «Municipio» no es como era: se copia de nuevo.\n");
  requireSame();
}

TEST_P(Transfer, Different_TheFirstRowIsTold) {
  move();
  std::string message;
  openDatabase(target, parishSchema())
      ->Execute("UPDATE Cargo SET Descripcion = \"\" WHERE IDCargo = 1");
  EXPECT_EQ(kindOf([&] { requireSame(); }, &message), ErrorKind::NotADatabase);
  EXPECT_EQ(message, "La tabla «Cargo» no tiene lo mismo que el original en la fila 1.");
}

/// What a server holds is copied into a file, which is returned to; no key is given again.
TEST_P(Transfer, Copied_CanBeReturnedTo) {
  move();
  const fs::path copy = directory.path() / "antes.copia";
  const auto there = openDatabase(target, parishSchema());
  ChangeWatch watch(*there);
  backupDatabase(*there, copy);
  EXPECT_FALSE(watch.changed());
  there->Execute("INSERT INTO Cargo (Nombre) VALUES (\"Organista\")");
  there->Execute("DELETE FROM Municipio");
  EXPECT_TRUE(watch.changed());
  Restore(copy, target, parishSchema()).run();
  requireSame();
  there->Execute("INSERT INTO Cargo (Nombre) VALUES (\"Organista\")");
  EXPECT_EQ(there->Execute("SELECT MAX(IDCargo) AS n FROM Cargo").integer("n"), GetParam() ? 4 : 3);
}

INSTANTIATE_TEST_SUITE_P(ToAFileOrAServer, Transfer, testing::Bool());

}  // namespace fidaleon::store::TransferTest
