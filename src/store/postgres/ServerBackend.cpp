#include "store/postgres/ServerBackend.h"

#include "store/Open.h"
#include "store/Transaction.h"
#include "store/Transfer.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerAccess.h"
#include "store/schema/Installer.h"
#include "store/sqlite/FileBackend.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

/// The file itself: whoever comes through a symbolic link meets the others where it lies.
fs::path real(const fs::path& file) {
  std::error_code failed;
  const fs::path found = fs::canonical(file, failed);
  return failed ? file : found;
}

}  // namespace

ServerBackend::ServerBackend(const fs::path& addressFile)
    : file_(real(addressFile)), address_(readAddress(file_)) {}

std::unique_ptr<PostgresEngine> ServerBackend::connect() const {
  return std::make_unique<PostgresEngine>(address_, passwordFor(address_));
}

std::unique_ptr<Engine> ServerBackend::open() {
  auto engine = connect();
  const Answer there = engine->link().ask("SELECT to_regclass('fidaleon.\"Esquema\"') IS NULL");
  if (there.text(0, 0) == "t")
    throw Error(ErrorKind::Missing,
                "En la base de datos " + address_.shown() + " no hay ninguna parroquia.");
  return engine;
}

void ServerBackend::create(const Schema& schema, const Filling& fill) {
  auto engine = connect();
  Installer installer(*engine, schema);
  const bool rest = installer.isUnfinished();
  if (!rest && installer.isThere()) throw NameTaken(address_);
  if (rest) installer.remove();
  installer.createUnfinished();
  Connection connection(std::move(engine), schema, file_.string());
  try {
    if (fill) fill(connection);
    installer.finish();
  } catch (const std::exception&) {
    try {
      installer.remove();
    } catch (const Error&) {
      // It is unfinished, and goes with the next that is created.
    }
    throw;
  }
}

Backend::Unfinished ServerBackend::unfinished(const Schema& schema) {
  auto engine = connect();
  Installer installer(*engine, schema);
  const bool resumed = installer.isUnfinished();
  if (!resumed && installer.isThere()) throw NameTaken(address_);
  if (!resumed) installer.createUnfinished();
  return {std::move(engine), resumed};
}

void ServerBackend::finish(const Schema& schema) {
  const auto engine = connect();
  Installer installer(*engine, schema);
  if (!installer.isUnfinished()) throw NameTaken(address_);
  installer.finish();
}

void ServerBackend::replaceBy(const fs::path& copy, const Schema& schema,
                              const Progress& progress) {
  Connection database(open(), schema, file_.string());
  const auto from = FileBackend(copy).open();
  Transaction transaction(database);
  copyRows(*from, database.engine(), schema, partOf(progress, 0, 700));
  requireSameRows(*from, database.engine(), schema, partOf(progress, 700, 1000));
  transaction.commit();
}

fs::path ServerBackend::takePlace(Draft&) {
  throw Error(ErrorKind::Misuse,
              "La parroquia está en un servidor: quien lo lleva tiene que ponerlo en marcha antes "
              "de volver a una copia.");
}

}  // namespace fidaleon::store
