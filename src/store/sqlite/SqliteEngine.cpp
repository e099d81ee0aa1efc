#include "store/sqlite/SqliteEngine.h"

#include <algorithm>
#include <random>
#include <thread>

#include "store/sqlite/NetworkDisk.h"
#include "store/sqlite/NetworkVfs.h"
#include "store/sqlite/SqliteErrors.h"
#include "store/sqlite/SqliteFunctions.h"
#include "store/sqlite/SqliteStatement.h"

namespace fidaleon::store {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 4s;
constexpr int kPagesAtOnce = 512;
constexpr int kStepsUnasked = 100000;  // of the engine, a few milliseconds

std::string savepoint(int depth) {
  return "parte" + std::to_string(depth);
}

/// Asks now and then, while a statement runs, whether it is still wanted.
class Heed {
 public:
  Heed(sqlite3* db, const Progress& progress) : db_(progress ? db : nullptr), progress_(progress) {
    if (db_ == nullptr) return;
    const auto unwanted = [](void* self) {
      return static_cast<const Heed*>(self)->progress_(0) ? 0 : 1;
    };
    sqlite3_progress_handler(db_, kStepsUnasked, unwanted, this);
  }
  ~Heed() {
    if (db_ != nullptr) sqlite3_progress_handler(db_, 0, nullptr, nullptr);
  }
  Heed(const Heed&) = delete;
  Heed& operator=(const Heed&) = delete;

 private:
  sqlite3* db_;
  const Progress& progress_;
};

/// A file may come from anywhere: what it would have done when it is read or written is not done.
void distrust(sqlite3* db) {
  const struct {
    int setting, value;
  } settings[] = {{SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                  {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                  {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                  {SQLITE_DBCONFIG_DEFENSIVE, 1}};
  for (const auto& s : settings) check(sqlite3_db_config(db, s.setting, s.value, nullptr), db);
}

}  // namespace

SqliteEngine::SqliteEngine(const std::filesystem::path& file, Access access) {
  const bool create = access == Access::Create;
  far_ = isNetworkDisk(file);
  open(file.string(), create ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE : SQLITE_OPEN_READWRITE,
       far_ ? networkVfs() : nullptr);
  try {
    distrust(db_);
    if (!create && far_ && usesWriteAheadLog(file)) leaveWriteAheadLog();
    // Reads the file, so that one that is no database is found out here.
    run("PRAGMA synchronous = FULL; SELECT count(*) FROM sqlite_schema;");
    // A journal that is taken away may come back with a power cut, and undo what was told as
    // stored. One that is cut to nothing may not.
    if (only("PRAGMA journal_mode").text() == "delete") run("PRAGMA journal_mode = TRUNCATE;");
  } catch (...) {
    sqlite3_close_v2(db_);
    throw;
  }
}

SqliteEngine::SqliteEngine(Unnamed where) {
  open(where == Unnamed::Memory ? ":memory:" : "", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

SqliteEngine::~SqliteEngine() {
  sqlite3_close_v2(db_);
}

void SqliteEngine::open(const std::string& name, int flags, const char* vfs) {
  const int code =
      sqlite3_open_v2(name.c_str(), &db_, flags | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX, vfs);
  if (code != SQLITE_OK) {
    const Error error = sqliteError(code, db_);
    sqlite3_close_v2(db_);
    throw error;
  }
  sqlite3_busy_handler(db_, waitForOthers, this);
  sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  addFunctions(db_);
}

/// The engine keeps no queue: whoever looks first after a writer has ended is next. Its own waiting
/// sleeps longer the longer it has waited, so that those who have just come pass it. Here who has
/// waited longer looks oftener, and nobody looks in step with others.
int SqliteEngine::waitForOthers(void* engine, int tries) {
  auto& self = *static_cast<SqliteEngine*>(engine);
  const auto now = std::chrono::steady_clock::now();
  if (tries == 0) self.waitingSince_ = now;
  const auto waited = now - self.waitingSince_;
  if (waited >= kPatience) return 0;
  thread_local std::minstd_rand chance{std::random_device{}()};
  const int most = waited < 50ms ? 8000 : waited < 200ms ? 3000 : 1000;
  const int microseconds = std::uniform_int_distribution(most / 4, most)(chance);
  // Each look at a disk of another machine is a journey.
  std::this_thread::sleep_for(std::chrono::microseconds(microseconds * (self.far_ ? 10 : 1)));
  return 1;
}

/// The only value that a statement gives; Null when there is none.
Value SqliteEngine::only(std::string_view sql) {
  SqliteStatement statement(db_, sql);
  RowStore rows(1);
  if (statement.step()) statement.read(rows);
  return rows.rows() == 0 ? Value() : rows.at(0, 0);
}

void SqliteEngine::leaveWriteAheadLog() {
  run("PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = DELETE; "
      "PRAGMA locking_mode = NORMAL; SELECT count(*) FROM sqlite_schema;");
}

std::unique_ptr<Statement> SqliteEngine::prepare(std::string_view sql, std::string_view) {
  return std::make_unique<SqliteStatement>(db_, sql);
}

std::string SqliteEngine::way(const std::string& sql) {
  SqliteStatement statement(db_, "EXPLAIN QUERY PLAN " + sql);
  RowStore rows(4);
  while (statement.step()) statement.read(rows);
  std::string steps;
  for (std::int64_t i = 0; i < rows.rows(); ++i) steps += rows.text(i, 3) + '\n';
  return steps;
}

bool SqliteEngine::sameWay(const std::string& sql, const std::string& reversed) {
  const std::string steps = way(sql);
  return steps.find("TEMP B-TREE") == std::string::npos && steps == way(reversed);
}

void SqliteEngine::run(std::string_view sql) {
  check(sqlite3_exec(db_, std::string(sql).c_str(), nullptr, nullptr, nullptr), db_);
}

void SqliteEngine::beginReading() {
  run("BEGIN");
}

void SqliteEngine::begin(int depth) {
  // Immediate: to wait for another writer at the start is safe, to meet one half way is not.
  run(depth == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT " + savepoint(depth));
}

void SqliteEngine::commit(int depth) {
  run(depth == 0 ? "COMMIT" : "RELEASE " + savepoint(depth));
}

void SqliteEngine::rollback(int depth) {
  const std::string name = savepoint(depth);
  run(depth == 0 ? "ROLLBACK" : "ROLLBACK TO " + name + "; RELEASE " + name);
}

bool SqliteEngine::inTransaction() const {
  return sqlite3_get_autocommit(db_) == 0;
}

void SqliteEngine::onTouched(Touched told) {
  touched_ = std::move(told);
  if (!touched_) {
    sqlite3_update_hook(db_, nullptr, nullptr);
    return;
  }
  sqlite3_update_hook(
      db_,
      [](void* to, int, const char*, const char* table, sqlite3_int64 row) {
        (*static_cast<Touched*>(to))(table, row);
      },
      &touched_);
}

std::int64_t SqliteEngine::touchedSoFar() const {
  return sqlite3_total_changes64(db_);
}

std::int64_t SqliteEngine::othersStored() {
  return only("PRAGMA data_version").integer();
}

void SqliteEngine::renewTextOrder() {
  run("REINDEX");
}

// The indexes of a large parish do not fit into the usual few pages; the log is brought home in
// larger pieces. What is committed is as safe as ever.
void SqliteEngine::prepareFor(Writing writing) {
  run(writing == Writing::Large
          ? "PRAGMA cache_size = -40000; PRAGMA wal_autocheckpoint = 8000;"
          : "PRAGMA cache_size = -2000; PRAGMA wal_autocheckpoint = 1000; PRAGMA shrink_memory;");
}

void SqliteEngine::requireSound(Check check, const Progress& progress) {
  const Heed heed(db_, progress);
  SqliteStatement statement(
      db_, check == Check::Quick ? "PRAGMA quick_check" : "PRAGMA integrity_check");
  RowStore rows(1);
  while (statement.step()) statement.read(rows);
  if (rows.rows() != 1 || rows.at(0, 0).text() != "ok") throw sqliteError(SQLITE_CORRUPT, nullptr);
}

void SqliteEngine::copyFrom(SqliteEngine& from, const Progress& progress) {
  sqlite3_backup* copy = sqlite3_backup_init(db_, "main", from.db_, "main");
  if (copy == nullptr) throw sqliteError(sqlite3_errcode(db_), db_);
  int stepped = SQLITE_OK;
  while (stepped == SQLITE_OK) {
    stepped = sqlite3_backup_step(copy, progress ? kPagesAtOnce : -1);
    const auto all = std::max(sqlite3_backup_pagecount(copy), 1);
    const auto done = 1000LL * (all - sqlite3_backup_remaining(copy)) / all;
    if (stepped == SQLITE_OK && progress && !progress(static_cast<int>(done)))
      stepped = SQLITE_INTERRUPT;
  }
  const int finished = sqlite3_backup_finish(copy);  // takes back what is not whole
  if (stepped != SQLITE_DONE && stepped != SQLITE_OK) throw sqliteError(stepped, db_);
  check(finished, db_);
}

void SqliteEngine::backup(const std::filesystem::path& to, const Schema&,
                          const Progress& progress) {
  SqliteEngine copy(to, Access::Create);
  copy.copyFrom(*this, progress);
  copy.run("PRAGMA journal_mode = DELETE;");
}

}  // namespace fidaleon::store
