#include "store/Open.h"

#include "store/postgres/ServerAddress.h"
#include "store/schema/Installer.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

std::unique_ptr<Connection> openDatabase(const fs::path& place, const Schema& schema) {
  const std::unique_ptr<Backend> backend = backendAt(place);
  auto engine = backend->open();
  Installer(*engine, schema).upgrade();
  return std::make_unique<Connection>(std::move(engine), schema, backend->source().string());
}

NameTaken::NameTaken(const fs::path& file)
    : Error(ErrorKind::Constraint, "Ya existe el archivo «" + file.string() + "».") {}

NameTaken::NameTaken(const ServerAddress& address)
    : Error(ErrorKind::Constraint,
            "En la base de datos " + address.shown() + " ya hay una parroquia.") {}

std::unique_ptr<Connection> createDatabase(const fs::path& place, const Schema& schema,
                                           const Filling& fill) {
  backendAt(place)->create(schema, fill);
  return openDatabase(place, schema);
}

bool readersHinderNobody(const fs::path& place) {
  return backendAt(place)->readersHinderNobody();
}

void takeUpLog(const fs::path& place) {
  backendAt(place)->takeUpLog();
}

}  // namespace fidaleon::store
