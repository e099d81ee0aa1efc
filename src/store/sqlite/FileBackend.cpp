#include "store/sqlite/FileBackend.h"

#include <fcntl.h>
#include <unistd.h>

#include "files/Durable.h"
#include "files/Naming.h"
#include "files/PrivateFile.h"
#include "store/Companions.h"
#include "store/Draft.h"
#include "store/FileFault.h"
#include "store/Open.h"
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

}  // namespace

std::unique_ptr<Engine> FileBackend::open() {
  file_ = requireFile(file_);
  requireWritable(file_);
  files::narrow(file_);
  return std::make_unique<SqliteEngine>(file_, SqliteEngine::Access::Existing);
}

void FileBackend::create(const Schema& schema, const Filling& fill) {
  if (files::isThere(file_)) throw NameTaken(file_);
  // A draft first: whoever is killed here leaves no half database under the name.
  Draft draft(file_, ".nueva");
  makeDraft(draft.path(), schema, fill);
  if (files::isThere(file_)) throw NameTaken(file_);
  if (!companionsOf(file_).empty()) putCompanionsAside(file_, ".apartada");
  if (!draft.acceptIfFree()) throw NameTaken(file_);
}

Backend::Unfinished FileBackend::unfinished(const Schema& schema) {
  if (files::isThere(file_)) throw NameTaken(file_);
  const fs::path file = draft();
  if (files::isThere(file)) {
    auto engine = std::make_unique<SqliteEngine>(file, SqliteEngine::Access::Existing);
    if (Installer(*engine, schema).isUnfinished()) return {std::move(engine), true};
    engine.reset();  // somebody was stopped before there was anything in it
    removeCompanions(file);
    files::removeForGood(file);
  }
  try {
    files::create(file);
  } catch (const fs::filesystem_error& e) {
    throw fileFault("No se puede escribir en", file, e.code());
  }
  auto engine = std::make_unique<SqliteEngine>(file, SqliteEngine::Access::Create);
  Installer(*engine, schema).createUnfinished();
  return {std::move(engine), false};
}

void FileBackend::finish(const Schema& schema) {
  const fs::path file = draft();
  try {
    {
      SqliteEngine engine(file, SqliteEngine::Access::Existing);
      Installer(engine, schema).finish();
      engine.leaveWriteAheadLog();
      if (!isNetworkDisk(file)) engine.run("PRAGMA journal_mode = WAL;");
    }
    files::syncFile(file);
    removeCompanions(file);
    if (!companionsOf(file_).empty()) putCompanionsAside(file_, ".apartada");
    if (!files::takeFreeName(file, file_)) throw NameTaken(file_);
  } catch (const fs::filesystem_error& e) {
    throw fileFault("No se puede crear el archivo", file_, e.code());
  }
}

void FileBackend::replaceBy(const fs::path& copy, const Schema&, const Progress& progress) {
  SqliteEngine database(file_, SqliteEngine::Access::Existing);
  SqliteEngine from(copy, SqliteEngine::Access::Existing);
  database.copyFrom(from, progress);
}

fs::path FileBackend::takePlace(Draft& copy) {
  const bool leavesNothing = !files::isThere(file_) && companionsOf(file_).empty();
  const fs::path aside = leavesNothing ? fs::path() : putAside(file_, ".estropeada");
  copy.accept();
  return aside;
}

bool FileBackend::readersHinderNobody() {
  return usesWriteAheadLog(file_);
}

void FileBackend::takeUpLog() {
  if (isNetworkDisk(file_) || usesWriteAheadLog(file_)) return;
  SqliteEngine(file_, SqliteEngine::Access::Existing)
      .run("PRAGMA journal_mode = DELETE; PRAGMA journal_mode = WAL;");
}

}  // namespace fidaleon::store
