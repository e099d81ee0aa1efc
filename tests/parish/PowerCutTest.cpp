// The power fails while something is stored: what was told as stored is there, the rest is there as
// a whole or not at all.

#include <fstream>

#include "parish/Insert.h"
#include "parish/Parish.h"
#include "parish/SimulatedDisk.h"
#include "store/Engine.h"
#include "store/Open.h"
#include "store/Restore.h"
#include "store/Transaction.h"
#include "store/sqlite/NetworkDisk.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/FileSettings.h"

namespace fidaleon::app::PowerCutTest {

namespace fs = std::filesystem;
using tests::DiskRecorder;
using tests::SimulatedDisk;

constexpr int ROWS = 5;  // of each transaction and table

const store::Schema& smallSchema() {
  static const store::Schema schema("Ensayo", 1, [] {
    std::vector<store::Table> tables(2, store::Table("Uno"));
    tables[1] = store::Table("Dos");
    for (store::Table& table : tables) table.counter("ID").texts({"Texto"}).index({"Texto"});
    return tables;
  }());
  return schema;
}

void addRows(store::Connection& connection) {
  store::Transaction transaction(connection);
  for (int i = 0; i < ROWS; ++i)
    for (const char* table : {"Uno", "Dos"})
      Insert(table).text("Texto", std::to_string(i) + std::string(200, 'x')).into(connection);
  transaction.commit();
}

/// Transactions in the database; throws when it is not sound or has half of one.
int transactionsIn(const fs::path& file) {
  const auto open = store::openDatabase(file, smallSchema());
  store::SqliteEngine(file, store::SqliteEngine::Access::Existing).requireSound();
  const auto one = open->Execute("SELECT COUNT(*) AS n FROM Uno").integer("n");
  const auto two = open->Execute("SELECT COUNT(*) AS n FROM Dos").integer("n");
  if (one != two || one % ROWS != 0) throw std::runtime_error("half a transaction");
  return static_cast<int>(one / ROWS);
}

fs::path made(const fs::path& file, int transactions) {
  const auto connection = store::createDatabase(file, smallSchema());
  for (int i = 0; i < transactions; ++i) addRows(*connection);
  return file;
}

bool isBetween(int n, int least, int most) {
  return least <= n && n <= most;
}

void storeRows(DiskRecorder& disk) {
  const auto connection = store::openDatabase(disk.folder / "ensayo", smallSchema());
  connection->engine().run("PRAGMA wal_autocheckpoint = 12");
  for (int i = 0; i < 6; ++i) {
    addRows(*connection);
    disk.told();
  }
}

void returnToThree(DiskRecorder& disk) {
  store::Restore(disk.folder / "copia", disk.folder / "ensayo", smallSchema()).run();
  disk.told();
}

bool hasThreeOrTwenty(const fs::path& folder, int told) {
  const int n = transactionsIn(folder / "ensayo");
  return n == 3 || (n == 20 && told == 0);
}

void madeWithACopy(const fs::path& folder) {
  made(folder / "copia", 3);
  made(folder / "ensayo", 20);
}

void madeEmpty(const fs::path& folder) {
  made(folder / "ensayo", 0);
}

bool hasRows(const fs::path& folder, int told) {
  return isBetween(transactionsIn(folder / "ensayo"), told, told + 1);
}

NewParish menorca(const fs::path& folder) {
  NewParish parish;
  parish.name = "San Blas";
  parish.edition = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
  parish.user = "Secretaría";
  parish.town = "Ferreries";
  parish.province = 7;
  parish.directory = folder / "datos" / "parroquia";
  return parish;
}

/// What is done, and what a folder must hold when the power failed after so much of it was told.
struct Case {
  const char* name;
  std::function<void(const fs::path& folder)> prepare;
  std::function<void(DiskRecorder&)> work;
  std::function<bool(const fs::path& folder, int told)> holds;
  int images;
  bool onAShare = false;

  friend void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }
};

const Case CASES[] = {
    {"Log", madeEmpty, storeRows, hasRows, 100},
    {"Journal", madeEmpty, storeRows, hasRows, 100, true},
    {"Creation", [](const fs::path&) {},
     [](DiskRecorder& disk) {
       createParish(menorca(disk.folder), {2026, 5, 20});
       disk.told();
     },
     [](const fs::path& folder, int told) {
       const ParishFiles files(menorca(folder).directory);
       if (!files.exists()) return told == 0;
       const OpenParish open = openParish(files);
       return open.doubt == EditionDoubt::None &&
              open.edition == FDAPI::cCAplicacion::APP_FIDALEON_MENORCA &&
              open.parish->Execute("SELECT Nombre FROM Institucion").text("Nombre") == "San Blas";
     },
     30},
    {"Return", madeWithACopy, returnToThree, hasThreeOrTwenty, 80},
    {"ReturnOnAShare", madeWithACopy, returnToThree, hasThreeOrTwenty, 80, true},
    {"ReturnOfADamagedOne",
     [](const fs::path& folder) {
       made(folder / "copia", 3);
       std::ofstream(folder / "ensayo") << "estropeada";
       std::ofstream(folder / "ensayo-wal") << "restos";
     },
     [](DiskRecorder& disk) {
       store::Restore(disk.folder / "copia", disk.folder / "ensayo", smallSchema()).takePlace();
       disk.told();
     },
     [](const fs::path& folder, int told) {
       const fs::path file = folder / "ensayo";
       if (told == 0 && (!fs::exists(file) || fs::file_size(file) < 20)) return true;
       return transactionsIn(file) == 3;
     },
     50},
    {"CopyOverAnOlderOne",
     [](const fs::path& folder) {
       made(folder / "copia", 2);
       made(folder / "ensayo", 3);
     },
     [](DiskRecorder& disk) {
       store::backupDatabase(*store::openDatabase(disk.folder / "ensayo", smallSchema()),
                             disk.folder / "copia");
       disk.told();
     },
     [](const fs::path& folder, int told) {
       return isBetween(transactionsIn(folder / "copia"), 2 + told, 3);
     },
     50},
    {"Settings", [](const fs::path&) {},
     [](DiskRecorder& disk) {
       support::FileSettings settings(disk.folder / "nueva" / "ajustes.ini");
       for (const char* value : {"1", "2", "3"}) {
         settings.write("F", "s", "k", value);
         disk.told();
       }
     },
     [](const fs::path& folder, int told) {
       const support::FileSettings settings(folder / "nueva" / "ajustes.ini");
       return isBetween(std::stoi(settings.read("F", "s", "k", "0")), told, told + 1);
     },
     50},
};

// Two desks in one folder: to one the disk is its own, to the other it is far away.
TEST_F(ParishTest, LogTakenUpUnderADeskFarAway_StopsItInsteadOfBeingShared) {
  const fs::path file = made(directory() / "ensayo", 1);
  std::unique_ptr<store::Connection> far;
  {
    const tests::NetworkShare share;
    far = store::openDatabase(file, smallSchema());
  }
  addRows(*far);
  EXPECT_FALSE(store::usesWriteAheadLog(file));
  store::takeUpLog(file);
  EXPECT_TRUE(store::usesWriteAheadLog(file));
  EXPECT_THROW(addRows(*far), store::Error);
  EXPECT_EQ(transactionsIn(file), 2);
}

class PowerCut : public ::testing::TestWithParam<Case> {
 protected:
  void SetUp() override {
    fs::create_directory(folder_);
    const auto share = shareIfAny();
    GetParam().prepare(folder_);
  }

  static std::unique_ptr<tests::NetworkShare> shareIfAny() {
    return GetParam().onAShare ? std::make_unique<tests::NetworkShare>() : nullptr;
  }

  std::vector<tests::DiskCall> record() {
    const auto share = shareIfAny();
    DiskRecorder recorder(folder_);
    GetParam().work(recorder);
    return std::move(recorder.calls);
  }

  bool holdsAfterACut(const SimulatedDisk& disk, int told, std::mt19937& chance) {
    const fs::path left = dir_ / "queda";
    fs::create_directory(left);
    disk.cutPower(left, chance);
    bool holds = false;
    try {
      const DiskRecorder unsynced(left);
      holds = GetParam().holds(left, told);
    } catch (const std::exception&) {
    }
    fs::remove_all(left);
    return holds;
  }

  /// How many of the folders that cuts leave, up to `enough`, do not hold what they must.
  int losses(bool syncsCount, int enough) {
    SimulatedDisk disk(folder_);
    const std::vector<tests::DiskCall> calls = record();
    std::mt19937 chance(7);
    int told = 0;
    int lost = 0;
    for (std::size_t i = 0; i <= calls.size() && lost < enough; ++i) {
      const bool done = i == calls.size();
      const bool tried = chance() % calls.size() < static_cast<std::size_t>(GetParam().images);
      for (int image = done ? 10 : tried; image > 0; --image)
        lost += !holdsAfterACut(disk, told, chance);
      if (done) break;
      const auto kind = calls[i].kind;
      told += kind == tests::DiskCall::Kind::Told;
      const bool sync =
          kind == tests::DiskCall::Kind::Sync || kind == tests::DiskCall::Kind::SyncFolder;
      if (syncsCount || !sync) disk.apply(calls[i]);
    }
    return lost;
  }

  TempDirectory owner_;
  const fs::path dir_ = owner_.path();
  const fs::path folder_ = dir_ / "disco";
};

TEST_P(PowerCut, AtAnyMoment_LosesNothingThatWasTold) {
  EXPECT_EQ(losses(true, 100), 0);
}

TEST_P(PowerCut, OnADiskThatIgnoresSyncs_IsFoundOut) {
  EXPECT_GE(losses(false, 1), 1);
}

INSTANTIATE_TEST_SUITE_P(While, PowerCut, ::testing::ValuesIn(CASES),
                         [](const auto& each) { return each.param.name; });

}  // namespace fidaleon::app::PowerCutTest
