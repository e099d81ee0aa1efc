// Databases as files: creation, opening, upgrade, copies, and everything that can be wrong with
// a file or its disk.

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <functional>

#include "files/Machine.h"
#include "store/Engine.h"
#include "store/FailingEngine.h"
#include "store/Open.h"
#include "store/Restore.h"
#include "store/schema/Schema.h"
#include "store/sqlite/NetworkDisk.h"

namespace fidaleon::store::DatabaseFilesTest {

namespace fs = std::filesystem;

class Files : public testing::Test {
 protected:
  template <class Act>
  ErrorKind kindOf(Act act) {
    return store::kindOf(act, &message);
  }
  ErrorKind kindOfOpening() {
    return kindOf([&] { openDatabase(file, parishSchema()); });
  }

  tests::TempDirectory directory;
  const fs::path folder = directory.path();
  const fs::path file = folder / "Parroquia de Ñuño 100%? #1.fid";
  std::string message;
};

/// Lets something happen between a copy and what is done with it.
class AfterBackup : public ForwardingEngine {
 public:
  AfterBackup(std::unique_ptr<Engine> inner, std::function<void(const fs::path&)> then)
      : ForwardingEngine(std::move(inner)), then_(std::move(then)) {}
  void backup(const fs::path& to, const Schema& schema, const Progress& progress) override {
    ForwardingEngine::backup(to, schema, progress);
    then_(to);
  }

 private:
  std::function<void(const fs::path&)> then_;
};

constexpr const char* kInsert = "INSERT INTO Cargo (Nombre) VALUES (\"Sacristán\")";

std::int64_t count(Connection& connection, const std::string& table = "Cargo") {
  return connection.Execute("SELECT COUNT(*) AS n FROM " + table).integer("n");
}

TEST_F(Files, Created_KeepsWhatIsWrittenAndIsNotOverwritten) {
  {
    const auto connection = createDatabase(file, parishSchema());
    EXPECT_EQ(connection->Properties("data source").Value, file.string());
    EXPECT_EQ(kindOf([&] { connection->Properties("USER ID"); }), ErrorKind::UnknownName);
    EXPECT_EQ(count(*connection, "Provincia"), 52);
    EXPECT_EQ(
        connection->Execute("SELECT Nombre FROM Provincia WHERE Codigo_Oficial = 7").text("Nombre"),
        "Illes Balears");
    EXPECT_EQ(
        connection->Execute("SELECT Nombre FROM Provincia WHERE IDProvincia = 50").text("Nombre"),
        "Zaragoza");
    connection->Execute(kInsert);
    EXPECT_TRUE(usesWriteAheadLog(file));
  }
  EXPECT_EQ(count(*openDatabase(file, parishSchema())), 1);
  EXPECT_EQ(kindOf([&] { createDatabase(file, parishSchema()); }), ErrorKind::Constraint);
  EXPECT_EQ(count(*openDatabase(file, parishSchema())), 1);
  EXPECT_EQ(kindOf([&] { createDatabase(folder / "no" / "hay.fid", parishSchema()); }),
            ErrorKind::Connection);
}

TEST_F(Files, OfTwoThatCreateOneDatabase_TheFirstHasIt) {
  EXPECT_EQ(
      kindOf([&] {
        createDatabase(file, parishSchema(), [&](Connection& mine) {
          mine.Execute(kInsert);
          createDatabase(file, parishSchema())->Execute("INSERT INTO Grupo (Nombre) VALUES ('a')");
        });
      }),
      ErrorKind::Constraint);
  const auto connection = openDatabase(file, parishSchema());
  EXPECT_EQ(count(*connection, "Grupo"), 1);
  EXPECT_EQ(count(*connection), 0);
}

// Whatever the mask of the account says.
TEST_F(Files, Rights_AreTheOwnersAloneOrTheGroupsOfASharedFolder) {
  const auto rights = [](const fs::path& path) {
    return static_cast<unsigned>(fs::status(path).permissions() & fs::perms::all);
  };
  const struct {
    mode_t folder, mask;
    unsigned file;
  } cases[] = {{0755, 0000, 0600}, {0755, 0077, 0600}, {02770, 0077, 0660}, {02775, 0000, 0660}};
  for (const auto& c : cases) {
    const mode_t before = umask(c.mask);
    ASSERT_EQ(chmod(folder.c_str(), c.folder), 0);
    {
      const auto connection = createDatabase(file, parishSchema());
      connection->Execute(kInsert);
      backupDatabase(*connection, folder / "copia");
      chmod(file.c_str(), 0666);
      openDatabase(file, parishSchema())->Execute(kInsert);
      for (const auto& made : fs::directory_iterator(folder))
        EXPECT_EQ(rights(made.path()), c.file) << made.path() << " " << std::oct << c.folder;
    }
    umask(before);
    fs::remove(file);
    fs::remove(folder / "copia");
  }
}

TEST_F(Files, WhatIsNoDatabase_IsRefused) {
  EXPECT_EQ(kindOfOpening(), ErrorKind::Missing);
  EXPECT_NE(message.find(file.string()), std::string::npos);
  std::ofstream(file) << "";
  EXPECT_EQ(kindOfOpening(), ErrorKind::NotADatabase);
  std::ofstream(file) << std::string(5000, 'x');
  EXPECT_EQ(kindOfOpening(), ErrorKind::NotADatabase);
  fs::remove(file);
  createDatabase(file, reportsSchema());
  EXPECT_EQ(kindOfOpening(), ErrorKind::NotADatabase) << "another kind of database";
  fs::remove(file);
  fs::create_directory(file);
  EXPECT_EQ(kindOfOpening(), ErrorKind::NotADatabase);
}

TEST_F(Files, WhatAForeignFileWouldDo_IsNotDone) {
  const auto prepare = [&](const char* sql) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(db);
  };
  createDatabase(file, parishSchema())->Execute("INSERT INTO Grupo (Nombre) VALUES ('uno')");
  prepare("CREATE TRIGGER trampa AFTER INSERT ON Cargo BEGIN DELETE FROM Grupo; END");
  {
    const auto connection = openDatabase(file, parishSchema());
    connection->Execute(kInsert);
    EXPECT_EQ(count(*connection, "Grupo"), 1);
  }
  prepare("DROP TABLE Cargo; CREATE VIEW Cargo AS SELECT 1 AS IDCargo");
  EXPECT_THROW(count(*openDatabase(file, parishSchema())), Error);
}

TEST_F(Files, CutOffFile_IsRefusedOrReportedWhenRead) {
  createDatabase(file, parishSchema());
  fs::resize_file(file, fs::file_size(file) / 2);
  EXPECT_EQ(kindOf([&] {
              const auto connection = openDatabase(file, parishSchema());
              for (const Table& table : parishSchema().tables()) count(*connection, table.name());
            }),
            ErrorKind::NotADatabase);
}

TEST_F(Files, ReadOnlyFile_IsRefused) {
  createDatabase(file, parishSchema())->engine().run("PRAGMA journal_mode = DELETE");
  fs::permissions(file, fs::perms::owner_read | fs::perms::others_read);
  fs::permissions(folder, fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  tests::OtherProcess other([&](auto& self) {
    if (geteuid() == 0 && seteuid(65534) != 0) _exit(1);
    self.say(kindOfOpening() == ErrorKind::ReadOnly ? 'y' : 'n');
  });
  EXPECT_EQ(other.hear(), 'y');
}

Schema version(int number) {
  Table persons("Persona");
  persons.counter("ID").texts({"Nombre"}).zeroNumbers();
  std::vector<Table> tables;
  if (number >= 2) {
    persons.from(2).longs({"Año"}).yesNos({"Activa"}).index({"Año"});
    Table second("Segunda", 2);
    second.counter("ID").texts({"Texto"}).row({Value(std::int64_t{1}), Value(std::string("a'b"))});
    tables.push_back(second);
  }
  tables.insert(tables.begin(), persons);
  return Schema("Ensayo", number, std::move(tables));
}

TEST_F(Files, OlderDatabase_GetsWhatItLacksAndKeepsItsRows) {
  const Schema old = version(1);
  const Schema current = version(2);
  createDatabase(file, old)->Execute("INSERT INTO Persona (Nombre) VALUES ('Ana')");
  {
    const auto connection = openDatabase(file, current);
    const auto row = connection->Execute("SELECT * FROM Persona");
    EXPECT_EQ(row.text("Nombre"), "Ana");
    EXPECT_EQ(row.integer("año"), 0);
    EXPECT_FALSE(row.value("activa").isNull());
    EXPECT_EQ(connection->Execute("SELECT Texto FROM Segunda").text("Texto"), "a'b");
    connection->Execute("UPDATE Persona SET AÑO = 1950, Activa = true WHERE ID = 1");
  }
  EXPECT_EQ(openDatabase(file, current)->Execute("SELECT * FROM Persona").integer("Año"), 1950);
  // So does a copy of that time on its way back, which is only read.
  createDatabase(folder / "copia", old)->Execute("INSERT INTO Persona (Nombre) VALUES ('Eva')");
  Restore(folder / "copia", file, current).run();
  EXPECT_EQ(openDatabase(file, current)->Execute("SELECT * FROM Persona").text("Nombre"), "Eva");
  EXPECT_EQ(openDatabase(folder / "copia", old)->Execute("SELECT * FROM Persona").FieldCount(), 2);
  EXPECT_THROW(Restore(file, folder / "copia", old), Error) << "nor may it be newer";
  EXPECT_EQ(kindOf([&] { openDatabase(file, old); }), ErrorKind::NewerSchema);
}

TEST_F(Files, FailedUpgrade_LeavesTheOldDatabase) {
  const Schema old = version(1);
  createDatabase(file, old)->engine().run("CREATE TABLE Segunda (Estorbo)");
  EXPECT_THROW(openDatabase(file, version(2)), Error);
  const auto connection = openDatabase(file, old);
  EXPECT_EQ(connection->Execute("SELECT * FROM Persona").FieldCount(), 2);
}

TEST_F(Files, HeldByAnother_IsBusyFromTheFirstStepAndNothingIsWritten) {
  auto connection = createDatabase(file, parishSchema());
  {
    const auto other = openDatabase(file, parishSchema());
    other->BeginTrans();
    EXPECT_EQ(kindOf([&] { connection->BeginTrans(); }), ErrorKind::Busy);
    EXPECT_NE(message.find("usando la base de datos"), std::string::npos);
    EXPECT_EQ(count(*connection), 0) << "reading goes on";
    connection.reset();
    other->RollbackTrans();
    other->engine().run("PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = DELETE");
    other->Execute(kInsert);
    EXPECT_EQ(kindOfOpening(), ErrorKind::Busy);
  }
  EXPECT_EQ(count(*openDatabase(file, parishSchema())), 1);
}

TEST_F(Files, FullDisk_IsToldAndLosesNothingStored) {
  const auto connection = createDatabase(file, parishSchema());
  connection->Execute(kInsert);
  connection->BeginTrans();
  {
    const tests::FullDisk full(fs::file_size(file));
    EXPECT_EQ(kindOf([&] {
                for (int i = 0; i < 20000; ++i)
                  connection->Execute("INSERT INTO Cargo (Nombre, Descripcion) VALUES ('x', '" +
                                      std::string(4000, 'x') + "')");
              }),
              ErrorKind::DiskFull);
  }
  connection->RollbackTrans();
  EXPECT_EQ(count(*openDatabase(file, parishSchema())), 1);
  connection->Execute(kInsert);
}

// Another version of the library that knows the alphabet may sort in another way.
TEST_F(Files, IndexedUnderAnotherOrderOfLetters_IsNoSoundCopyUntilItIsIndexedAnew) {
  createDatabase(file, parishSchema());
  createDatabase(folder / "otra", parishSchema());
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
  const auto backwards = [](void*, int a, const void* x, int b, const void* y) {
    return std::string_view(static_cast<const char*>(y), static_cast<std::size_t>(b))
        .compare({static_cast<const char*>(x), static_cast<std::size_t>(a)});
  };
  sqlite3_create_collation(db, "ES", SQLITE_UTF8, nullptr, backwards);
  EXPECT_EQ(sqlite3_exec(db,
                         "INSERT INTO Bautismo_Hijo (PrimerApellido) VALUES ('Abad'), ('Gil'), "
                         "('Oro'), ('Zurita')",
                         nullptr, nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(db);
  EXPECT_EQ(kindOf([&] { Restore(file, folder / "otra", parishSchema()); }),
            ErrorKind::NotADatabase);
  openDatabase(file, parishSchema())->engine().run("UPDATE Esquema SET Orden = 'otro'");
  const auto connection = openDatabase(file, parishSchema());
  for (const std::string surname : {"ABAD", "Gil", "Oro", "Zurita"})
    EXPECT_EQ(count(*connection, "Bautismo_Hijo WHERE PrimerApellido='" + surname + "'"), 1)
        << surname;
}

TEST_F(Files, GoneOrReplacedWhileOpen_AcceptsNothingUntilItIsBack) {
  const auto connection = createDatabase(file, parishSchema());
  const fs::path aside = folder / "aparte";
  const std::vector<std::function<void()>> losses{[&] { fs::rename(file, aside); },
                                                  [&] {
                                                    fs::rename(file, aside);
                                                    std::ofstream(file) << "otro";
                                                  }};
  std::int64_t stored = 0;
  for (const auto& lose : losses) {
    lose();
    EXPECT_EQ(kindOf([&] { connection->Execute(kInsert); }), ErrorKind::Missing);
    EXPECT_EQ(kindOf([&] { connection->BeginTrans(); }), ErrorKind::Missing);
    EXPECT_NE(message.find("vuelva a aceptar"), std::string::npos);
    fs::rename(aside, file);
    connection->BeginTrans();
    connection->Execute(kInsert);
    lose();
    EXPECT_EQ(kindOf([&] { connection->CommitTrans(); }), ErrorKind::Missing);
    connection->RollbackTrans();
    fs::rename(aside, file);
    connection->Execute(kInsert);
    EXPECT_EQ(count(*connection), ++stored);
  }
}

/// What a killed program has left beside a file: a log with rows in it, or a journal.
void leaveBeside(const fs::path& file, const char* journal) {
  const fs::path other = file.string() + ".otra";
  const auto connection = createDatabase(other, parishSchema());
  connection->engine().run(std::string("PRAGMA journal_mode = ") + journal);
  connection->engine().run("PRAGMA cache_size = 1; PRAGMA cache_spill = 1");
  connection->BeginTrans();
  for (int i = 0; i < 500; ++i) connection->Execute(kInsert);
  if (journal == std::string("WAL")) connection->CommitTrans();
  for (const char* ending : {"-wal", "-journal"})
    if (fs::exists(other.string() + ending))
      fs::copy_file(other.string() + ending, file.string() + ending);
}

TEST_F(Files, NamesOfAnotherDatabasesRests_AreTakenWithoutThem) {
  const auto connection = createDatabase(folder / "parroquia", parishSchema());
  for (const char* journal : {"WAL", "PERSIST"}) {
    const fs::path created = folder / (std::string("nueva") + journal);
    leaveBeside(created, journal);
    EXPECT_EQ(count(*createDatabase(created, parishSchema())), 0);
    std::size_t kept = 0;
    for (const auto& entry : fs::directory_iterator(folder))
      kept +=
          entry.path().filename().string().starts_with(created.filename().string() + ".apartada");
    EXPECT_EQ(kept, 1U) << "nobody knows what is in it";

    const fs::path copy = folder / (std::string("copia") + journal);
    backupDatabase(*connection, copy);
    leaveBeside(copy, journal);
    backupDatabase(*connection, copy);
    EXPECT_FALSE(fs::exists(copy.string() + "-wal") || fs::exists(copy.string() + "-journal"));
    EXPECT_EQ(count(*openDatabase(copy, parishSchema())), 0);
  }
}

TEST_F(Files, BackupOverADatabaseThatIsOpen_IsRefused) {
  const auto connection = createDatabase(file, parishSchema());
  const auto other = createDatabase(folder / "otra", parishSchema());
  other->Execute(kInsert);
  EXPECT_EQ(kindOf([&] { backupDatabase(*connection, folder / "otra"); }), ErrorKind::Busy);
  EXPECT_EQ(count(*other), 1);

  createDatabase(folder / "tercera", parishSchema());
  std::unique_ptr<Connection> late;
  connection->wrapEngine([&](std::unique_ptr<Engine> inner) {
    return std::make_unique<AfterBackup>(std::move(inner), [&](const fs::path&) {
      late = openDatabase(folder / "tercera", parishSchema());
    });
  });
  EXPECT_EQ(kindOf([&] { backupDatabase(*connection, folder / "tercera"); }), ErrorKind::Busy);
  late->Execute(kInsert);
  EXPECT_EQ(count(*openDatabase(folder / "tercera", parishSchema())), 1);
}

TEST_F(Files, BackupOverWhatCannotBeLookedAt_IsRefused) {
  const auto connection = createDatabase(file, parishSchema());
  const fs::path copy = folder / "copia";
  createDatabase(copy, parishSchema());
  fs::create_directory(copy.string() + "-wal");
  kindOf([&] { backupDatabase(*connection, copy); });
  EXPECT_NE(message.find("no puede saberse si un programa lo tiene abierto"), std::string::npos)
      << message;
  EXPECT_TRUE(fs::exists(copy.string() + "-wal"));
}

TEST_F(Files, Backup_IsACompleteDatabaseAndReplacesOnlyWhenWhole) {
  const fs::path copy = folder / "copia.copia";
  const auto connection = createDatabase(file, parishSchema());
  connection->Execute(kInsert);
  const fs::path begunAlike = copy.string() + ".partes.txt";
  std::ofstream(begunAlike) << "de otro";
  fs::last_write_time(begunAlike, fs::file_time_type::clock::now() - std::chrono::days(2));
  backupDatabase(*connection, copy);
  EXPECT_TRUE(fs::remove(begunAlike)) << "only drafts are swept";
  connection->Execute(kInsert);
  EXPECT_EQ(count(*openDatabase(copy, parishSchema())), 1);
  backupDatabase(*connection, copy);
  EXPECT_EQ(count(*openDatabase(copy, parishSchema())), 2);
  EXPECT_THROW(backupDatabase(*connection, folder / "no" / "copia"), Error);
  connection->wrapEngine([](std::unique_ptr<Engine> inner) {
    return std::make_unique<AfterBackup>(std::move(inner), [](const fs::path& made) {
      openDatabase(made, parishSchema())->Execute("DELETE FROM Cargo");
    });
  });
  EXPECT_EQ(kindOf([&] { backupDatabase(*connection, copy); }), ErrorKind::NotADatabase);
  EXPECT_EQ(count(*openDatabase(copy, parishSchema())), 2) << "the older one stays";
  std::size_t files = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder)) ++files;
  EXPECT_LE(files, 4U) << "drafts are left behind";
}

TEST_F(Files, LookedAtWhileItIsOpen_KeepsItsLocks) {
  const auto connection = createDatabase(file, parishSchema());
  const auto seenByAnother = [&] {
    tests::OtherProcess another([&](auto& self) {
      struct flock bytes {};  // those that the engine locks
      bytes.l_type = F_WRLCK;
      bytes.l_start = 0x40000000;
      bytes.l_len = 512;
      const int fd = ::open(file.c_str(), O_RDWR);
      self.say(::fcntl(fd, F_GETLK, &bytes) == 0 && bytes.l_type != F_UNLCK ? 'y' : 'n');
    });
    return another.hear() == 'y';
  };
  for (const char* journal : {"WAL", "DELETE"}) {
    connection->engine().run(std::string("PRAGMA journal_mode = ") + journal);
    connection->BeginTrans();
    EXPECT_TRUE(seenByAnother()) << journal;
    usesWriteAheadLog(file);
    openDatabase(file, parishSchema());
    EXPECT_TRUE(seenByAnother()) << journal;
    connection->RollbackTrans();
  }
}

}  // namespace fidaleon::store::DatabaseFilesTest
