// Databases that bear no name and are gone with their connection.

#include <map>

#include "store/Open.h"
#include "store/schema/Installer.h"
#include "store/sqlite/SqliteEngine.h"

namespace fidaleon::store {

namespace {

/// As a new one is.
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

std::unique_ptr<Connection> memoryDatabase(const Schema& schema, const std::string& dataSource) {
  return unnamed(SqliteEngine::Unnamed::Memory, schema, dataSource);
}

std::unique_ptr<Connection> passingDatabase(const Schema& schema) {
  return unnamed(SqliteEngine::Unnamed::Disk, schema, {});
}

}  // namespace fidaleon::store
