#include "store/Restore.h"

#include "store/Error.h"
#include "store/RowCounts.h"
#include "store/schema/Installer.h"
#include "store/sqlite/SqliteEngine.h"
#include "text/SystemErrors.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

bool hasCompanion(const fs::path& file) {
  for (const char* const ending : {"-wal", "-journal"}) {
    fs::path companion = file;
    companion += ending;
    std::error_code ignored;
    if (fs::exists(companion, ignored)) return true;
  }
  return false;
}

void requireCopy(const fs::path& copy, const fs::path& database) {
  std::error_code ignored;
  const std::string name = "«" + copy.string() + "»";
  if (!fs::exists(copy, ignored)) throw Error(ErrorKind::Missing, "No se encuentra " + name + ".");
  if (!fs::is_regular_file(copy, ignored))
    throw Error(ErrorKind::NotADatabase, name + " no es un archivo.");
  if (fs::equivalent(copy, database, ignored) || hasCompanion(copy))
    throw Error(ErrorKind::Busy, name + " no es una copia: un programa lo tiene abierto.");
}

void read(const fs::path& copy, const fs::path& draft) {
  std::error_code failed;
  fs::copy_file(copy, draft, fs::copy_options::overwrite_existing, failed);
  if (!failed) fs::permissions(draft, fs::perms::owner_write, fs::perm_options::add, failed);
  if (!failed) return;
  throw Error(failed == std::errc::no_space_on_device ? ErrorKind::DiskFull : ErrorKind::Connection,
              "No se puede leer «" + copy.string() + "»: " + text::systemReason(failed));
}

}  // namespace

Restore::Restore(const fs::path& copy, const fs::path& database, const Schema& schema)
    : database_(database), schema_(schema), draft_(database, ".vuelta") {
  requireCopy(copy, database);
  read(copy, draft_.path());
  SqliteEngine engine(draft_.path(), SqliteEngine::Access::Existing);
  Installer(engine, schema_).upgrade();
  engine.requireSound();
  engine.run("PRAGMA journal_mode = DELETE;");
  counts_ = rowCounts(engine, schema_);
}

void Restore::run() {
  SqliteEngine database(database_, SqliteEngine::Access::Existing);
  {
    SqliteEngine copy(draft_.path(), SqliteEngine::Access::Existing);
    database.copyFrom(copy);
  }
  database.requireSound();
  if (rowCounts(database, schema_) != counts_)
    throw Error(ErrorKind::NotADatabase, "Lo que ha quedado en «" + database_.string() +
                                             "» no es lo que había en la copia.");
}

}  // namespace fidaleon::store
