#include "store/Open.h"

#include <fcntl.h>
#include <unistd.h>

#include <map>

#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "store/Companions.h"
#include "store/Draft.h"
#include "store/FileFault.h"
#include "store/RowCounts.h"
#include "store/schema/Installer.h"
#include "store/sqlite/NetworkDisk.h"
#include "store/sqlite/SqliteEngine.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

/// The file that the name leads to: whoever comes to it through a symbolic link meets the others
/// in the folder where it lies.
fs::path requireFile(const fs::path& file) {
  std::error_code failed;
  const fs::file_status status = fs::status(file, failed);
  if (status.type() == fs::file_type::not_found) {
    throw Error(ErrorKind::Missing, "No se encuentra la base de datos «" + file.string() + "».");
  }
  if (status.type() == fs::file_type::directory) {
    throw Error(ErrorKind::NotADatabase, "«" + file.string() + "» es una carpeta.");
  }
  const fs::path real = fs::canonical(file, failed);
  if (failed) throw fileFault("No se puede abrir", file, failed);
  return real;
}

/// Both the file and its folder, where the journal is kept.
void requireWritable(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  for (const fs::path& path : {file, folder}) {
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0) continue;
    throw Error(ErrorKind::ReadOnly, "No se puede escribir en «" + path.string() +
                                         "»: está protegido contra escritura.");
  }
}

/// What others write meanwhile is not seen, so that all reading shows the same state.
class Snapshot {
 public:
  explicit Snapshot(Engine& engine) : engine_(engine), own_(!engine.inTransaction()) {
    if (own_) engine_.run("BEGIN");
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

/// Closed when it returns.
void makeDraft(const fs::path& draft, const Schema& schema, const Filling& fill) {
  auto engine = std::make_unique<SqliteEngine>(draft, SqliteEngine::Access::Create);
  Installer(*engine, schema).create();
  Connection connection(std::move(engine), schema, fs::absolute(draft).string());
  if (fill) fill(connection);
  // Only now, so that nothing is left in a log that does not take the name with it.
  connection.engine().run("PRAGMA journal_mode = DELETE;");
  if (!isNetworkDisk(draft)) connection.engine().run("PRAGMA journal_mode = WAL;");
}

/// An unnamed database as a new one is.
std::unique_ptr<Connection> unnamed(SqliteEngine::Unnamed where, const Schema& schema,
                                    const std::string& dataSource) {
  auto engine = std::make_unique<SqliteEngine>(where);
  if (&schema == &parishSchema() || &schema == &reportsSchema()) {
    // Copying pages is many times faster than defining some sixty tables anew.
    static std::map<const Schema*, std::unique_ptr<SqliteEngine>> originals;
    auto& original = originals[&schema];
    if (original == nullptr) {
      original = std::make_unique<SqliteEngine>(SqliteEngine::Unnamed::Memory);
      Installer(*original, schema).create();
    }
    engine->copyFrom(*original);
  } else {
    Installer(*engine, schema).create();
  }
  return std::make_unique<Connection>(std::move(engine), schema, dataSource);
}

}  // namespace

std::unique_ptr<Connection> openDatabase(const fs::path& file, const Schema& schema) {
  const fs::path real = requireFile(file);
  requireWritable(real);
  files::narrow(real);
  auto engine = std::make_unique<SqliteEngine>(real, SqliteEngine::Access::Existing);
  Installer(*engine, schema).upgrade();
  return std::make_unique<Connection>(std::move(engine), schema, real.string());
}

NameTaken::NameTaken(const fs::path& file)
    : Error(ErrorKind::Constraint, "Ya existe el archivo «" + file.string() + "».") {}

std::unique_ptr<Connection> createDatabase(const fs::path& file, const Schema& schema,
                                           const Filling& fill) {
  if (files::isThere(file)) throw NameTaken(file);
  {
    // A draft first: whoever is killed here leaves no half database under the name.
    Draft draft(file, ".nueva");
    makeDraft(draft.path(), schema, fill);
    if (files::isThere(file)) throw NameTaken(file);
    if (!companionsOf(file).empty()) putCompanionsAside(file, ".apartada");
    if (!draft.acceptIfFree()) throw NameTaken(file);
  }
  return openDatabase(file, schema);
}

std::unique_ptr<Connection> memoryDatabase(const Schema& schema, const std::string& dataSource) {
  return unnamed(SqliteEngine::Unnamed::Memory, schema, dataSource);
}

std::unique_ptr<Connection> passingDatabase(const Schema& schema) {
  return unnamed(SqliteEngine::Unnamed::Disk, schema, {});
}

void takeUpLog(const fs::path& file) {
  if (isNetworkDisk(file) || usesWriteAheadLog(file)) return;
  SqliteEngine(file, SqliteEngine::Access::Existing)
      .run("PRAGMA journal_mode = DELETE; PRAGMA journal_mode = WAL;");
}

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
    engine.backup(draft.path(), partOf(progress, 0, 500));
  }
  try {
    requireCopied(draft.path(), from.schema(), counts);
    SqliteEngine(draft.path(), SqliteEngine::Access::Existing)
        .requireSound(check == Check::Quick, partOf(progress, 500, 1000));
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
