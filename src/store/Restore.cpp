#include "store/Restore.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <vector>

#include "files/Compressed.h"
#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "store/Backend.h"
#include "store/Companions.h"
#include "store/FileFault.h"
#include "store/RowCounts.h"
#include "store/schema/Installer.h"
#include "store/sqlite/SqliteEngine.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

void requireCopy(const fs::path& copy, const fs::path& database) {
  std::error_code ignored;
  const std::string name = "«" + copy.string() + "»";
  if (!fs::exists(copy, ignored)) throw Error(ErrorKind::Missing, "No se encuentra " + name + ".");
  if (!fs::is_regular_file(copy, ignored))
    throw Error(ErrorKind::NotADatabase, name + " no es un archivo.");
  if (fs::equivalent(copy, database, ignored) || hasUnfinished(copy))
    throw Error(ErrorKind::Busy, name + " no es una copia: un programa lo tiene abierto.");
}

[[noreturn]] void fail(const std::string& what, const fs::path& file, int why) {
  throw fileFault(what, file, {why, std::generic_category()});
}

/// The library's own way to copy a file does not tell a full disk from others.
void copyPlain(const fs::path& copy, const fs::path& draft) {
  const files::Descriptor in(::open(copy.c_str(), O_RDONLY | O_CLOEXEC));
  if (in.number() < 0) fail("No se puede leer", copy, errno);
  const files::Descriptor out(::open(draft.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC));
  if (out.number() < 0) fail("No se puede escribir en", draft, errno);
  std::vector<char> block(1 << 16);
  for (;;) {
    const ssize_t got = ::read(in.number(), block.data(), block.size());
    if (got == 0) return;
    if (got < 0) fail("No se puede leer", copy, errno);
    for (ssize_t put = 0; put < got;) {
      const ssize_t more =
          ::write(out.number(), block.data() + put, static_cast<std::size_t>(got - put));
      if (more < 0) fail("No se puede escribir en", draft, errno);
      put += more;
    }
  }
}

void read(const fs::path& copy, const fs::path& draft) {
  try {
    if (files::isCompressed(copy))
      files::expand(copy, draft);
    else
      copyPlain(copy, draft);
  } catch (const fs::filesystem_error& e) {
    throw fileFault("No se puede copiar", e.path1(), e.code());
  } catch (const files::NotCompressed& e) {
    throw Error(ErrorKind::NotADatabase, e.what());
  }
}

void requireWanted(const Progress& progress, int done) {
  if (progress && !progress(done)) throw Error(ErrorKind::Cancelled, "Se ha cancelado.");
}

}  // namespace

Restore::Restore(const fs::path& copy, const fs::path& database, const Schema& schema,
                 const Progress& progress)
    : database_(database), schema_(schema), draft_(database, ".vuelta") {
  requireCopy(copy, database);
  read(copy, draft_.path());
  requireWanted(progress, 200);
  SqliteEngine engine(draft_.path(), SqliteEngine::Access::Existing);
  Installer(engine, schema_).upgrade();
  engine.requireSound(Check::Whole, partOf(progress, 200, 1000));
  engine.leaveWriteAheadLog();
  counts_ = rowCounts(engine, schema_);
}

Unconfirmed::Unconfirmed(const Error& why)
    : Error(
          why.kind(),
          "Los datos de la copia ya están en la base de datos, pero el disco no ha confirmado que "
          "queden guardados: " +
              std::string(why.what()),
          why.number()) {}

bool Restore::isReplaced(const std::vector<std::int64_t>& before) const {
  return counts_ != before && rowCounts(*backendAt(database_)->open(), schema_) == counts_;
}

void Restore::replace(const Progress& progress) {
  const std::unique_ptr<Backend> backend = backendAt(database_);
  const std::vector<std::int64_t> before = rowCounts(*backend->open(), schema_);
  try {
    backend->replaceBy(draft_.path(), schema_, progress);
  } catch (const Error& e) {
    if (e.kind() != ErrorKind::Cancelled && isReplaced(before)) throw Unconfirmed(e);
    throw;
  }
}

void Restore::run(const Progress& progress) {
  replace(progress);
  requireContent();
}

fs::path Restore::takePlace() {
  const fs::path aside = backendAt(database_)->takePlace(draft_);
  requireContent();
  return aside;
}

// The copy was looked through as a whole; here it is seen whether all of it came.
void Restore::requireContent() const {
  const std::unique_ptr<Engine> engine = backendAt(database_)->open();
  engine->requireSound(Check::Quick, {});
  if (rowCounts(*engine, schema_) != counts_)
    throw Error(ErrorKind::NotADatabase, "Lo que ha quedado en «" + database_.string() +
                                             "» no es lo que había en la copia.");
}

}  // namespace fidaleon::store
