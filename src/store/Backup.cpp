// Copies of a database into a file of its own.

#include <vector>

#include "files/Durable.h"
#include "store/Companions.h"
#include "store/Draft.h"
#include "store/Open.h"
#include "store/RowCounts.h"
#include "store/schema/Installer.h"
#include "store/sqlite/SqliteEngine.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

/// What others write meanwhile is not seen, so that all reading shows the same state.
class Snapshot {
 public:
  explicit Snapshot(Engine& engine) : engine_(engine), own_(!engine.inTransaction()) {
    if (own_) engine_.beginReading();
  }
  ~Snapshot() {
    try {
      if (own_ && engine_.inTransaction()) engine_.rollback(0);
    } catch (const Error&) {
      // Nothing was written; the engine ends it with its next error or with the connection.
    }
  }
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

 private:
  Engine& engine_;
  bool own_;
};

/// What lies beside a database that is open is in use; taken away it would cost what it holds.
void requireClosed(const fs::path& file) {
  if (!files::isThere(file) || companionsOf(file).empty()) return;
  try {
    SqliteEngine(file, SqliteEngine::Access::Existing).leaveWriteAheadLog();
  } catch (const Error& error) {
    if (error.kind() == ErrorKind::NotADatabase) return;  // nothing that anybody could have open
    const bool known = error.kind() == ErrorKind::Busy;
    throw Error(error.kind(), "No se puede guardar la copia encima de «" + file.string() + "»: " +
                                  (known ? "un programa lo tiene abierto."
                                         : "no puede saberse si un programa lo tiene abierto."));
  }
}

void requireCopied(const fs::path& file, const Schema& schema,
                   const std::vector<std::int64_t>& counts) {
  SqliteEngine copy(file, SqliteEngine::Access::Existing);
  Installer(copy, schema).version();
  if (rowCounts(copy, schema) != counts)
    throw Error(ErrorKind::NotADatabase, "La copia no tiene lo mismo que el original.");
}

}  // namespace

void backupDatabase(Connection& from, const fs::path& to, Check check, const Progress& progress) {
  std::error_code ignored;
  if (fs::equivalent(to, from.Properties("DATA SOURCE").Value, ignored))
    throw Error(ErrorKind::Constraint,
                "La copia no puede guardarse encima de la propia base de datos.");
  requireClosed(to);
  Draft draft(to, ".parte");
  Engine& engine = from.engine();
  std::vector<std::int64_t> counts;
  {
    const Snapshot snapshot(engine);
    counts = rowCounts(engine, from.schema());
    engine.backup(draft.path(), from.schema(), partOf(progress, 0, 500));
  }
  try {
    requireCopied(draft.path(), from.schema(), counts);
    SqliteEngine(draft.path(), SqliteEngine::Access::Existing)
        .requireSound(check, partOf(progress, 500, 1000));
  } catch (const Error& error) {
    if (error.kind() != ErrorKind::NotADatabase) throw;
    throw Error(ErrorKind::NotADatabase, "La copia que se acaba de hacer en «" + to.string() +
                                             "» no se puede leer bien, y no se ha guardado.");
  }
  if (progress && !progress(1000)) throw Error(ErrorKind::Cancelled, "Se ha cancelado.");
  requireClosed(to);  // somebody may have come meanwhile
  draft.accept();
  requireCopied(to, from.schema(), counts);
}

}  // namespace fidaleon::store
