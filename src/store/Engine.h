#pragma once
// The seam where a database engine plugs in. Everything throws store::Error.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "store/Literal.h"
#include "store/Progress.h"
#include "store/RowStore.h"

namespace fidaleon::store {

class Fence;
class Schema;
class Spelling;

enum class Check {
  Whole,  // also what indexes say against what tables say, which takes three times as long
  Quick,
};

/// How much is about to be written.
enum class Writing { Usual, Large };

enum class Lifetime {
  Call,   // the text stays until the statement has been stepped once and reset
  Brief,  // the statement copies it
};

/// A prepared statement of the engine. Must not outlive the engine.
class Statement {
 public:
  virtual ~Statement() = default;

  /// Known once it was started.
  virtual int columnCount() const = 0;
  virtual std::string columnName(int position) const = 0;
  /// The table whose column it is; empty for an expression.
  virtual std::string columnTable(int position) const = 0;
  /// `number` counts from 1.
  virtual void bind(int number, const Literal& value, Lifetime lifetime) = 0;
  /// Has it carried out so far that its columns are known; for one that returns rows. step() does
  /// it where it was not done.
  virtual void start() {}
  /// True when there is a row.
  virtual bool step() = 0;
  /// Appends the current row.
  virtual void read(RowStore& rows) = 0;
  /// Ready to be bound and stepped again; gives back what the engine held for it. Never throws.
  virtual void reset() = 0;
};

class Engine {
 public:
  virtual ~Engine() = default;

  /// `source` is the statement as the caller wrote it, its literals taken out.
  virtual std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) = 0;
  /// Whether both go through the same rows by the same index without sorting them: in opposite
  /// orders, the one begins where the other ends, also among rows that are alike.
  virtual bool sameWay(const std::string& sql, const std::string& reversed) = 0;
  /// Runs statements that return nothing, separated by semicolons.
  virtual void run(std::string_view sql) = 0;

  /// All reading shows the same state, whatever others write, until rollback(0).
  virtual void beginReading() = 0;
  /// A transaction in which rows are taken away is about to begin.
  virtual void aheadOfRemoval() {}
  /// `depth` 0 is the transaction itself, above 0 a part nested in it.
  virtual void begin(int depth) = 0;
  virtual void commit(int depth) = 0;
  virtual void rollback(int depth) = 0;
  /// False also after the engine itself has given up a transaction because of an error.
  virtual bool inTransaction() const = 0;

  virtual const Spelling& spelling() const = 0;
  /// Told of each row that is stored, changed or taken away from now on, also of what is undone
  /// later: its table, and its key where the engine counts them.
  using Touched = std::function<void(std::string_view table, std::int64_t row)>;
  virtual void onTouched(Touched told) = 0;
  /// How many that were in all; those that could not be told of too.
  virtual std::int64_t touchedSoFar() const = 0;
  /// Differs from an earlier answer when others have stored something since: other programs, or
  /// other connections of this one.
  virtual std::int64_t othersStored() = 0;

  /// A consistent copy of all tables of the schema into a new file, which is closed again. The file
  /// is one that FileBackend opens, whatever engine this is.
  virtual void backup(const std::filesystem::path& to, const Schema& schema,
                      const Progress& progress) = 0;
  /// Reads the whole database; throws NotADatabase when it is damaged. How far it is, is not known:
  /// `progress` is told 0 again and again. An engine whose server looks after that has nothing to
  /// do, here and in the next two.
  virtual void requireSound(Check, const Progress&) {}
  void requireSound() { requireSound(Check::Whole, {}); }
  /// Whether a server's libraries order text in another way than those that built its indexes.
  /// Throws ReadOnly where they do and this user may not build them anew.
  virtual bool isTextOrderOld() { return false; }
  /// Builds indexes anew for the order of text that the libraries of this machine, or of the
  /// server, have now.
  virtual void renewTextOrder() {}
  virtual void prepareFor(Writing) {}
  /// Must hold whenever something is written from now on; null for nothing. Outlives the engine or
  /// is taken away before.
  virtual void fenceWith(Fence*) {}
  /// From another thread: what it is doing throws Cancelled.
  virtual void interrupt() = 0;
};

}  // namespace fidaleon::store
