#include "store/FailingEngine.h"
#include "support/NewDatabase.h"

namespace fidaleon::store::RecordsetTest {

class Recordsets : public testing::Test {
 protected:
  void fill(int rows) {
    connection->BeginTrans();
    for (int i = 1; i <= rows; ++i) {
      connection->Execute("INSERT INTO Cargo (Nombre, Descripcion) VALUES (\"Cargo " +
                          std::to_string(i) + "\", '')");
    }
    connection->CommitTrans();
  }

  std::unique_ptr<Connection> connection = tests::newDatabase(parishSchema());
};

TEST_F(Recordsets, Moves_GoBothWaysAndStopBeyondTheEnds) {
  fill(4);
  auto set = connection->Execute("SELECT * FROM Cargo ORDER BY IDCargo");
  EXPECT_FALSE(set.BOF());
  EXPECT_FALSE(set.EOF_());
  EXPECT_EQ(set.RecordCount(), 4);
  EXPECT_EQ(set.integer("IDCargo"), 1);
  set.MoveLast();
  EXPECT_EQ(set.integer("IDCargo"), 4);
  set.MoveNext();
  EXPECT_TRUE(set.EOF_());
  EXPECT_EQ(kindOf([&] { set.text("Nombre"); }), ErrorKind::Misuse);
  EXPECT_EQ(kindOf([&] { set.MoveNext(); }), ErrorKind::Misuse);
  set.MovePrevious();
  EXPECT_EQ(set.integer("idcargo"), 4);
  set.MoveFirst();
  set.MovePrevious();
  EXPECT_TRUE(set.BOF());
  EXPECT_EQ(kindOf([&] { set.text("Nombre"); }), ErrorKind::Misuse);
  set.MoveNext();
  EXPECT_EQ(set.integer("IDCargo"), 1);
}

TEST_F(Recordsets, Empty_IsAtBothEndsAndRefusesMoves) {
  auto set = connection->Execute("SELECT * FROM Cargo");
  EXPECT_TRUE(set.EOF_());
  EXPECT_TRUE(set.BOF());
  EXPECT_EQ(set.RecordCount(), 0);
  EXPECT_EQ(kindOf([&] { set.MoveFirst(); }), ErrorKind::Misuse);
  EXPECT_EQ(kindOf([&] { set.MoveLast(); }), ErrorKind::Misuse);
  EXPECT_EQ(kindOf([&] { set.MoveNext(); }), ErrorKind::Misuse);
}

TEST_F(Recordsets, Closed_IsWhatAWriteGivesAndRefusesUse) {
  auto set = connection->Execute("DELETE * FROM Cargo");
  EXPECT_EQ(set.State(), 0);
  EXPECT_EQ(kindOf([&] { set.EOF_(); }), ErrorKind::Misuse);
  set = connection->Execute("SELECT * FROM Cargo");
  EXPECT_EQ(set.State(), 1);
  set.Close();
  EXPECT_EQ(set.State(), 0);
}

TEST_F(Recordsets, Open_ShowsRowsAsTheyWereWhenOpened) {
  fill(50);
  auto set = connection->Execute("SELECT * FROM Cargo ORDER BY IDCargo DESC");
  connection->Execute("DELETE * FROM Cargo WHERE IDCargo < 40");
  connection->Execute("UPDATE Cargo SET Nombre='otro'");
  EXPECT_EQ(set.RecordCount(), 50);
  set.MoveLast();
  EXPECT_EQ(set.text("Nombre"), "Cargo 1");

  auto inside = connection->Execute("SELECT * FROM Cargo");
  connection->BeginTrans();
  connection->Execute("DELETE * FROM Cargo");
  auto none = connection->Execute("SELECT * FROM Cargo");
  connection->RollbackTrans();
  EXPECT_EQ(none.RecordCount(), 0);
  EXPECT_EQ(inside.RecordCount(), 11);
}

/// Counts the rows that are stepped over.
class CountingEngine : public ForwardingEngine {
 public:
  CountingEngine(std::unique_ptr<Engine> inner, int& rows)
      : ForwardingEngine(std::move(inner)), rows_(rows) {}

  std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) override {
    struct Counted : ForwardingStatement {
      Counted(std::unique_ptr<Statement> s, int& n) : ForwardingStatement(std::move(s)), rows(n) {}
      void read(RowStore& store) override {
        ++rows;
        ForwardingStatement::read(store);
      }
      int& rows;
    };
    return std::make_unique<Counted>(ForwardingEngine::prepare(sql, source), rows_);
  }

 private:
  int& rows_;
};

TEST_F(Recordsets, LongOnes_AreFetchedOnDemandAndDrainedBeforeAWrite) {
  fill(500);
  int rows = 0;
  connection->wrapEngine([&](std::unique_ptr<Engine> inner) {
    return std::make_unique<CountingEngine>(std::move(inner), rows);
  });
  {
    const auto last = connection->Execute("SELECT * FROM Cargo ORDER BY IDCargo DESC");
    EXPECT_EQ(last.integer("IDCargo"), 500);
    EXPECT_LT(rows, 10);
  }
  connection->Execute("DELETE * FROM Cargo WHERE IDCargo = 500");
  EXPECT_LT(rows, 10) << "a record set that is gone need not be drained";
  rows = 0;
  auto open = connection->Execute("SELECT * FROM Cargo WHERE IDCargo > 1");
  open.MoveLast();
  EXPECT_EQ(open.text("Nombre"), "Cargo 499");
  EXPECT_LT(rows, 10) << "the key gives the last row at once";
  connection->Execute("DELETE * FROM Cargo WHERE IDCargo = 499");
  EXPECT_EQ(rows, 499);
  EXPECT_EQ(open.text("Nombre"), "Cargo 499");
  open.MovePrevious();
  EXPECT_EQ(open.text("Nombre"), "Cargo 498");
}

TEST_F(Recordsets, LastRow_IsTheOneThatGoingThroughAllEndsAt) {
  for (int i = 0; i < 40; ++i)
    connection->Execute(
        "INSERT INTO Bautismo (CodLibro, Folio, Numero, FechaBautismo) VALUES (1, " +
        std::to_string(i % 7 / 2) + ", \"" + std::to_string(i % 3) + "a\", \"" +
        std::to_string(i % 5) + "\")");
  for (const char* order : {"", " ORDER BY Folio, Val(Numero)", " ORDER BY Folio DESC",
                            " ORDER BY FechaBautismo desc, Folio", " ORDER BY Numero ASC"}) {
    auto walked =
        connection->Execute(std::string("SELECT * FROM Bautismo WHERE CodLibro=1") + order);
    auto jumped =
        connection->Execute(std::string("SELECT * FROM Bautismo WHERE CodLibro=1") + order);
    walked.RecordCount();
    walked.MoveLast();
    jumped.MoveLast();
    EXPECT_EQ(jumped.integer("IDBautismo"), walked.integer("IDBautismo")) << order;
    jumped.MoveNext();
    EXPECT_TRUE(jumped.EOF_()) << order;
  }
}

TEST_F(Recordsets, Values_ReadAsTextNumberAndFlag) {
  connection->Execute(
      "INSERT INTO Libro_Bautismo (Nombre, Nuevo, FolioSiguiente, NumeroSiguiente) VALUES "
      "(\"12a\", true, 7, 3)");
  const auto row = connection->Execute("SELECT * FROM Libro_Bautismo");
  EXPECT_EQ(row.integer("Nombre"), 12);
  EXPECT_EQ(row.text("FolioSiguiente"), "7");
  EXPECT_TRUE(row.value("NumeroSiguiente").isText());
  EXPECT_TRUE(row.flag("Nuevo"));
  EXPECT_EQ(row.integer("Nuevo"), -1);
  EXPECT_FALSE(row.flag("Cerrado"));
  EXPECT_TRUE(row.value("FechaCreacion").isNull());
  EXPECT_EQ(row.text("FechaCreacion"), "");
  EXPECT_EQ(Value(2.5).text(), "2.5");
  EXPECT_EQ(Value(3.0).text(), "3");
}

}  // namespace fidaleon::store::RecordsetTest
