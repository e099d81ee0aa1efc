// What columns admit, what becomes of values that do not fit, and what transactions undo.

#include "store/FailingEngine.h"
#include "support/NewDatabase.h"

namespace fidaleon::store::TypesTest {

class Types : public testing::Test {
 protected:
  Recordset run(const std::string& sql) { return connection->Execute(sql); }

  /// What a book's column holds after the value was written into it; the kind of the error
  /// otherwise.
  std::string stored(const std::string& column, const std::string& value) {
    const std::string table =
        column == "TResidenciaDomAct" ? "Matrimonio_Novios" : "Libro_Bautismo";
    run("DELETE * FROM " + table);
    try {
      run("INSERT INTO " + table + " (" + column + ") VALUES (" + value + ")");
    } catch (const Error& error) {
      EXPECT_EQ(run("SELECT * FROM " + table).RecordCount(), 0);
      return "error " + std::to_string(static_cast<int>(error.kind()));
    }
    const auto row = run("SELECT " + column + " FROM " + table);
    const std::string inserted = row.text(column);
    run("UPDATE " + table + " SET " + column + " = " + value);
    EXPECT_EQ(run("SELECT " + column + " FROM " + table).text(column), inserted);
    return inserted;
  }
  std::string refused(ErrorKind kind) { return "error " + std::to_string(static_cast<int>(kind)); }

  std::unique_ptr<Connection> connection = tests::newDatabase(parishSchema());
};

TEST_F(Types, Values_AreFittedOrRefused) {
  const std::string constraint = refused(ErrorKind::Constraint);
  std::string letters;  // of two bytes each
  for (int i = 0; i < 255; ++i) letters += "ñ";
  const struct {
    const char* column;
    std::string value;
    std::string stored;
  } cases[] = {
      {"FolioSiguiente", "7", "7"},
      {"FolioSiguiente", "-7", "-7"},
      {"FolioSiguiente", "- 7", "-7"},
      {"FolioSiguiente", "\"12\"", "12"},
      {"FolioSiguiente", "\"---\"", "0"},
      {"FolioSiguiente", "''", "0"},
      {"FolioSiguiente", "\"doce\"", constraint},
      {"FolioSiguiente", "\"12a\"", constraint},
      {"FolioSiguiente", "2.6", "3"},
      {"FolioSiguiente", "2147483647", "2147483647"},
      {"FolioSiguiente", "2147483648", constraint},
      {"FolioSiguiente", "99999999999999999999", constraint},
      {"FolioSiguiente", "2147483647 + 1", constraint},
      {"FolioSiguiente", "3 + 4", "7"},
      {"FolioSiguiente", "NULL", ""},
      {"CodTipoNombre", "32767", "32767"},
      {"CodTipoNombre", "-32769", constraint},
      {"TResidenciaDomAct", "255", "255"},
      {"TResidenciaDomAct", "256", constraint},
      {"TResidenciaDomAct", "-1", constraint},
      {"Nuevo", "1", "-1"},
      {"Nuevo", "0", "0"},
      {"Nuevo", "-1", "-1"},
      {"Nuevo", "7", "-1"},
      {"Nuevo", "TRUE", "-1"},
      {"Nuevo", "false", "0"},
      {"Nuevo", "3 > 2", "-1"},
      {"NumeroSiguiente", "1", "1"},
      {"NumeroSiguiente", "\"12a\"", "12a"},
      {"Nombre", "\"" + letters + "\"", letters},
      {"Nombre", "\"" + letters + "ñ\"", refused(ErrorKind::TooLong)},
      {"Nombre", "'it''s \"so\"'", "it's \"so\""},
      {"Nombre", "\"a?1;--b\\[c]\"", "a?1;--b\\[c]"},
      {"Nombre", "\"日本 😀\"", "日本 😀"},
      {"Nombre", "\"\"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(stored(c.column, c.value), c.stored) << c.value;
}

TEST_F(Types, YesNo_MatchesTrueAndNeverOne) {
  run("INSERT INTO Libro_Bautismo (Nuevo, Cerrado) VALUES (1, 0)");
  const struct {
    const char* condition;
    int rows;
  } cases[] = {{"Nuevo = true", 1},   {"nuevo=1", 0},   {"nuevo=-1", 1},
               {"Nuevo <> False", 1}, {"Nuevo", 1},     {"NOT Nuevo", 0},
               {"NOT Cerrado", 1},    {"Cerrado=0", 1}, {"Cerrado=False", 1},
               {"Nuevo = Cerrado", 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(run(std::string("SELECT * FROM Libro_Bautismo WHERE ") + c.condition).RecordCount(),
              c.rows)
        << c.condition;
  }
  run("UPDATE Libro_Bautismo SET Nuevo = NOT Nuevo");
  EXPECT_EQ(run("SELECT Nuevo FROM Libro_Bautismo").integer("Nuevo"), 0);
}

TEST_F(Types, Counters_AreNeverGivenTwice) {
  run("INSERT INTO Cargo (Nombre) VALUES ('a')");
  run("DELETE * FROM Cargo");
  run("INSERT INTO Cargo (Nombre) VALUES ('b')");
  EXPECT_EQ(run("SELECT MAX(IDCargo) AS ID FROM Cargo").integer("ID"), 2);
}

TEST_F(Types, StatementsThatMakeNoSense_AreRefusedInSpanish) {
  const struct {
    const char* sql;
    ErrorKind kind;
  } cases[] = {
      {"", ErrorKind::Syntax},
      {"SELEC * FROM Cargo", ErrorKind::Syntax},
      {"SELECT * FROM Cargo WHERE IDCargo=", ErrorKind::Syntax},
      {"SELECT * FROM Cargo WHERE Nombre=\"abc", ErrorKind::Syntax},
      {"SELECT * FROM Cargo WHERE Nombre=\"a\"b\"", ErrorKind::Syntax},
      {"SELECT * FROM Cargo WHERE IDCargo=12a", ErrorKind::Syntax},
      {"SELECT * FROM Cargo; DELETE FROM Cargo", ErrorKind::Syntax},
      {"DROP TABLE Cargo", ErrorKind::Syntax},
      {"PRAGMA user_version", ErrorKind::Syntax},
      {"SELECT * FROM Carga", ErrorKind::UnknownName},
      {"SELECT * FROM sqlite_schema", ErrorKind::UnknownName},
      {"SELECT Nonbre FROM Cargo", ErrorKind::UnknownName},
      {"SELECT Cargo.Nonbre FROM Cargo", ErrorKind::UnknownName},
      {"SELECT * FROM Cargo WHERE Nombre=abc", ErrorKind::UnknownName},
      {"SELECT load_extension('x') FROM Cargo", ErrorKind::UnknownName},
      {"INSERT INTO Cargo (Nombre) VALUES ('a', 'b')", ErrorKind::Syntax},
      {"INSERT INTO Cargo (Nombre, Descripcion) VALUES ('a')", ErrorKind::Syntax},
      {"UPDATE Cargo SET Nombre='a', WHERE IDCargo=1", ErrorKind::UnknownName},
  };
  for (const auto& c : cases) {
    std::string words;
    EXPECT_EQ(kindOf([&] { run(c.sql); }, &words), c.kind) << c.sql << ": " << words;
    for (const char* english : {"near", "syntax", "values for"})
      EXPECT_EQ(words.find(english), std::string::npos) << words;
  }
  run("INSERT INTO Cargo (Nombre) VALUES ('sigue')");
}

TEST_F(Types, Transactions_Nest) {
  const auto names = [&] {
    std::string all;
    for (auto set = run("SELECT Nombre FROM Cargo"); !set.EOF_(); set.MoveNext()) {
      all += set.text("Nombre");
    }
    return all;
  };
  const auto add = [&](const std::string& name) {
    run("INSERT INTO Cargo (Nombre) VALUES ('" + name + "')");
  };
  connection->BeginTrans();
  add("a");
  connection->BeginTrans();
  add("b");
  connection->RollbackTrans();
  connection->BeginTrans();
  add("c");
  EXPECT_THROW(run("INSERT INTO Libro_Bautismo (FolioSiguiente) VALUES (2147483647 + 1)"), Error);
  connection->CommitTrans();
  EXPECT_EQ(names(), "ac");
  EXPECT_TRUE(connection->inTransaction());
  connection->CommitTrans();
  EXPECT_FALSE(connection->inTransaction());
  connection->BeginTrans();
  add("d");
  connection->RollbackTrans();
  EXPECT_EQ(names(), "ac");
  EXPECT_THROW(connection->CommitTrans(), Error);
  EXPECT_THROW(connection->RollbackTrans(), Error);
}

TEST_F(Types, TransactionGivenUpByTheEngine_StoresNothingMore) {
  connection->BeginTrans();
  run("INSERT INTO Cargo (Nombre) VALUES ('a')");
  connection->engine().rollback(0);  // as the engine does by itself on some errors
  EXPECT_THROW(run("INSERT INTO Cargo (Nombre) VALUES ('b')"), Error);
  EXPECT_THROW(connection->CommitTrans(), Error);
  connection->RollbackTrans();
  run("INSERT INTO Cargo (Nombre) VALUES ('c')");
  EXPECT_EQ(run("SELECT * FROM Cargo").RecordCount(), 1);
}

TEST_F(Types, MoreShapesThanPlansKept_GoOnWorking) {
  for (const char* name : {"a", "b", "c", "d"})
    run(std::string("INSERT INTO Cargo (Nombre) VALUES ('") + name + "')");
  const auto open = run("SELECT * FROM Cargo");
  for (int i = 1; i <= 600; ++i) {
    const auto set = run("SELECT * FROM Cargo" +
                         std::string(static_cast<std::size_t>(i % 300), ' ') + " WHERE Nombre='c'");
    EXPECT_EQ(set.integer("IDCargo"), 3);
  }
  EXPECT_EQ(open.RecordCount(), 4);
}

}  // namespace fidaleon::store::TypesTest
