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

class Spelling;

enum class Lifetime {
  Call,   // the text stays until the statement has been stepped once and reset
  Brief,  // the statement copies it
};

/// A prepared statement of the engine. Must not outlive the engine.
class Statement {
 public:
  virtual ~Statement() = default;

  virtual int columnCount() const = 0;
  virtual std::string columnName(int position) const = 0;
  /// The table whose column it is; empty for an expression.
  virtual std::string columnTable(int position) const = 0;
  /// `number` counts from 1.
  virtual void bind(int number, const Literal& value, Lifetime lifetime) = 0;
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
  /// A consistent copy into a new file, which is closed again.
  virtual void backup(const std::filesystem::path& to, const Progress& progress) = 0;
};

}  // namespace fidaleon::store
