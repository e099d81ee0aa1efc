#pragma once

#include <sqlite3.h>

#include <chrono>

#include "store/Engine.h"
#include "store/sqlite/SqliteSpelling.h"

namespace fidaleon::store {

class SqliteEngine : public Engine {
 public:
  enum class Access { Existing, Create };
  enum class Unnamed { Memory, Disk };

  /// Triggers and views of a file do not run, nor functions that its schema calls.
  /// An existing file, or a new one, which may be there when it is empty. A file on a network disk
  /// is taken out of write-ahead logging, which is not safe there.
  SqliteEngine(const std::filesystem::path& file, Access access);
  /// For this engine alone, and gone with it.
  explicit SqliteEngine(Unnamed where);
  ~SqliteEngine() override;
  SqliteEngine(const SqliteEngine&) = delete;
  SqliteEngine& operator=(const SqliteEngine&) = delete;

  std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) override;
  bool sameWay(const std::string& sql, const std::string& reversed) override;
  void run(std::string_view sql) override;
  void beginReading() override;
  void begin(int depth) override;
  void commit(int depth) override;
  void rollback(int depth) override;
  bool inTransaction() const override;
  const Spelling& spelling() const override { return spelling_; }
  void onTouched(Touched told) override;
  std::int64_t touchedSoFar() const override;
  std::int64_t othersStored() override;
  void backup(const std::filesystem::path& to, const Schema& schema,
              const Progress& progress) override;
  using Engine::requireSound;
  /// Quickly: without comparing what indexes and tables say.
  void requireSound(Check check, const Progress& progress) override;
  void renewTextOrder() override;
  void prepareFor(Writing writing) override;
  void interrupt() override { sqlite3_interrupt(db_); }

  /// Replaces what this database holds by what `from` holds.
  void copyFrom(SqliteEngine& from, const Progress& progress = {});
  /// Leaves nothing beside the file once it is closed. Needs the file for itself: throws Busy when
  /// anybody else has it open with its log.
  void leaveWriteAheadLog();
  sqlite3* handle() { return db_; }

 private:
  void open(const std::string& name, int flags, const char* vfs = nullptr);
  Value only(std::string_view sql);
  std::string way(const std::string& sql);
  static int waitForOthers(void* engine, int tries);

  sqlite3* db_ = nullptr;
  SqliteSpelling spelling_;
  Touched touched_;
  std::chrono::steady_clock::time_point waitingSince_;
  bool far_ = false;  // on a network disk
};

}  // namespace fidaleon::store
