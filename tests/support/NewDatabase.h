#pragma once
// An empty database for a test, in memory; on a server where the program of the tests is run with
// FIDALEON_MOTOR=servidor, so that what holds for one engine is seen to hold for the other.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "store/ForwardingEngine.h"
#include "store/Open.h"
#include "store/postgres/PostgresEngine.h"
#include "store/schema/Installer.h"
#include "support/PostgresCluster.h"

namespace fidaleon::tests {

/// Databases that a test has done with, for the next one: to empty one is many times faster than to
/// make one.
inline std::map<std::string, std::vector<std::unique_ptr<PostgresDatabase>>>& idleDatabases() {
  static std::map<std::string, std::vector<std::unique_ptr<PostgresDatabase>>> idle;
  return idle;
}

/// Has a database for itself.
class ServerEngine : public store::ForwardingEngine {
 public:
  ServerEngine(const std::string& model, std::unique_ptr<PostgresDatabase> database)
      : ForwardingEngine(std::make_unique<store::PostgresEngine>(database->address())),
        model_(model),
        database_(std::move(database)) {}
  ~ServerEngine() override { idleDatabases()[model_].push_back(std::move(database_)); }

 private:
  std::string model_;
  std::unique_ptr<PostgresDatabase> database_;
};

inline bool onServer() {
  static const bool server = std::getenv("FIDALEON_MOTOR") != nullptr;
  return server;
}

/// Puts back what a database began with.
inline constexpr const char* kEmptying = R"sql(
CREATE SCHEMA prueba;
CREATE FUNCTION prueba.recordar() RETURNS void LANGUAGE plpgsql AS $$ DECLARE t name; BEGIN
  FOR t IN SELECT relname FROM pg_class WHERE relnamespace = 'fidaleon'::regnamespace
      AND relkind = 'r' LOOP
    EXECUTE format('CREATE TABLE prueba.%1$I AS TABLE fidaleon.%1$I', t);
  END LOOP;
  CREATE TABLE prueba.numeros AS SELECT format('fidaleon.%I', sequencename)::regclass AS sequence,
    coalesce(last_value, start_value) AS number, last_value IS NOT NULL AS given
    FROM pg_sequences WHERE schemaname = 'fidaleon';
END $$;
CREATE FUNCTION prueba.vaciar() RETURNS void LANGUAGE plpgsql AS $$ DECLARE t name; filled boolean;
BEGIN
  FOR t IN SELECT relname FROM pg_class WHERE relnamespace = 'fidaleon'::regnamespace
      AND relkind = 'r' LOOP
    EXECUTE format('SELECT EXISTS (SELECT FROM fidaleon.%I)', t) INTO filled;
    CONTINUE WHEN NOT filled;
    EXECUTE format('DELETE FROM fidaleon.%I', t);
    EXECUTE format('INSERT INTO fidaleon.%1$I OVERRIDING SYSTEM VALUE SELECT * FROM prueba.%1$I',
      t);
  END LOOP;
  PERFORM setval(sequence, number, given) FROM prueba.numeros;
END $$;
)sql";

/// The database of the server that those of this schema begin as copies of: made once in a run.
inline std::string modelOf(const store::Schema& schema) {
  const store::PostgresSpelling spell;
  std::string all = spell.preparation();
  for (const store::Table& table : schema.tables()) {
    all += spell.createTable(table);
    for (const store::Index& index : table.indexes()) all += spell.createIndex(table, index);
  }
  const std::string name = "modelo_" + std::to_string(std::hash<std::string>()(all));
  store::Link& link = PostgresCluster::running().link();
  link.run("SELECT pg_advisory_lock(1330)");
  if (link.ask("SELECT 1 FROM pg_database WHERE datname = $1", {name}).rows() == 0) {
    const std::string draft = name + "_" + std::to_string(getpid());
    link.run("DROP DATABASE IF EXISTS " + draft);
    link.run("CREATE DATABASE " + draft + " TEMPLATE template0");
    {
      store::PostgresEngine engine(PostgresCluster::running().address(draft));
      store::Installer(engine, schema).create();
      engine.run(kEmptying);
      engine.run("SELECT prueba.recordar(); ANALYZE");
    }
    link.run("ALTER DATABASE " + draft + " RENAME TO " + name);
  }
  link.run("SELECT pg_advisory_unlock(1330)");
  return name;
}

inline std::unique_ptr<store::Connection> serverDatabase(const store::Schema& schema,
                                                         const std::string& dataSource) {
  const std::string model = modelOf(schema);
  auto& idle = idleDatabases()[model];
  std::unique_ptr<PostgresDatabase> database;
  if (idle.empty()) {
    database = std::make_unique<PostgresDatabase>(model);
  } else {
    database = std::move(idle.back());
    idle.pop_back();
    store::Link(database->address()).run("SELECT prueba.vaciar()");
  }
  return std::make_unique<store::Connection>(
      std::make_unique<ServerEngine>(model, std::move(database)), schema, dataSource);
}

inline std::unique_ptr<store::Connection> newDatabase(
    const store::Schema& schema, const std::string& dataSource = "/tmp/fidaleon.mdb") {
  return onServer() ? serverDatabase(schema, dataSource)
                    : store::memoryDatabase(schema, dataSource);
}

}  // namespace fidaleon::tests
