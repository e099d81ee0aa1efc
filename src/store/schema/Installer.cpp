#include "store/schema/Installer.h"

#include "store/Error.h"
#include "store/Spelling.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

/// A transaction that is undone unless it comes to its end.
class Step {
 public:
  explicit Step(Engine& engine) : engine_(engine) { engine_.begin(0); }
  ~Step() {
    try {
      if (engine_.inTransaction()) engine_.rollback(0);
    } catch (const Error&) {
      // The engine undoes it when the connection closes.
    }
  }
  Step(const Step&) = delete;
  Step& operator=(const Step&) = delete;
  void commit() { engine_.commit(0); }

 private:
  Engine& engine_;
};

}  // namespace

void Installer::create() {
  createAs(schema_.name());
}

void Installer::createUnfinished() {
  createAs(unfinishedName());
}

void Installer::createAs(const std::string& name) {
  Step step(engine_);
  const Spelling& spell = engine_.spelling();
  if (const std::string first = spell.preparation(); !first.empty()) engine_.run(first);
  engine_.run("CREATE TABLE " + spell.name("Esquema") + " (" + spell.name("Nombre") +
              " TEXT NOT NULL, " + spell.name("Version") + " INTEGER NOT NULL, " +
              spell.name("Orden") + " TEXT NOT NULL)");
  engine_.run("INSERT INTO " + spell.name("Esquema") + " VALUES (" + spell.text(name) + ", " +
              std::to_string(schema_.version()) + ", " + spell.text(text::orderVersion()) + ")");
  addSince(0);
  step.commit();
}

bool Installer::isUnfinished() {
  return storedName() == unfinishedName();
}

bool Installer::isThere() {
  return !storedName().empty();
}

void Installer::finish() {
  Step step(engine_);
  const Spelling& spell = engine_.spelling();
  engine_.run("UPDATE " + spell.name("Esquema") + " SET " + spell.name("Nombre") + " = " +
              spell.text(schema_.name()));
  step.commit();
}

void Installer::remove() {
  Step step(engine_);
  const auto drop = [&](const std::string& table) {
    engine_.run("DROP TABLE IF EXISTS " + engine_.spelling().name(table));
  };
  for (const Table& table : schema_.tables()) drop(table.name());
  drop("Esquema");
  step.commit();
}

void Installer::upgrade() {
  if (version() < schema_.version()) upgradeAlone();
  adoptTextOrder();
}

void Installer::upgradeAlone() try {
  Step step(engine_);
  const std::string alone = engine_.spelling().exclusiveUpgrade();
  if (!alone.empty()) engine_.run(alone);
  // Another workstation may have been faster.
  if (const int old = version(); old < schema_.version()) {
    addSince(old);
    const Spelling& spell = engine_.spelling();
    engine_.run("UPDATE " + spell.name("Esquema") + " SET " + spell.name("Version") + " = " +
                std::to_string(schema_.version()));
  }
  step.commit();
} catch (const Error& error) {
  if (error.kind() != ErrorKind::Busy) throw;
  throw Error(ErrorKind::Busy,
              "Otro puesto está poniendo al día la parroquia para esta versión del programa, o "
              "guardando en ella. Si hay muchas partidas, puede tardar unos minutos. Espere a que "
              "termine y vuelva a intentarlo.",
              kBeingUpgraded);
}

/// Empty where there is no such table.
std::string Installer::storedName() {
  try {
    return stored("Nombre").text();
  } catch (const Error& error) {
    if (error.kind() != ErrorKind::Syntax && error.kind() != ErrorKind::UnknownName) throw;
    return {};
  }
}

int Installer::version() {
  const std::string name = storedName();
  if (name == unfinishedName())
    throw Error(
        ErrorKind::NotADatabase,
        "La base de datos está a medias: se estaba creando o trasladando, y no se terminó.");
  if (name != schema_.name()) {
    throw Error(ErrorKind::NotADatabase, "El archivo no es una base de datos de este programa.");
  }
  const Value version = stored("Version");
  if (version.integer() > schema_.version()) {
    throw Error(ErrorKind::NewerSchema,
                "La base de datos es de una versión más nueva del programa. Actualice el programa "
                "en este equipo.");
  }
  return static_cast<int>(version.integer());
}

void Installer::adoptTextOrder() {
  const Spelling& spell = engine_.spelling();
  const bool here = spell.ordersTextHere();
  if (here ? stored("Orden").text() == text::orderVersion() : !engine_.isTextOrderOld()) return;
  Step step(engine_);
  engine_.renewTextOrder();
  if (here)
    engine_.run("UPDATE " + spell.name("Esquema") + " SET " + spell.name("Orden") + " = " +
                spell.text(text::orderVersion()));
  step.commit();
}

void Installer::addSince(int version) {
  const Spelling& spell = engine_.spelling();
  for (const Table& table : schema_.tables()) {
    const bool isNew = table.since() > version;
    if (isNew) {
      engine_.run(spell.createTable(table));
      addRows(table);
    }
    for (const Column& column : table.columns()) {
      if (!isNew && column.since > version) engine_.run(spell.addColumn(table, column));
    }
    for (const Index& index : table.indexes()) {
      if (isNew || index.since > version) engine_.run(spell.createIndex(table, index));
    }
  }
  if (const std::string figures = spell.tellFigures(schema_); !figures.empty())
    engine_.run(figures);
}

void Installer::addRows(const Table& table) {
  for (const auto& row : table.rows()) {
    std::string values;
    for (const Value& value : row) values += (values.empty() ? "" : ", ") + valueText(value);
    engine_.run("INSERT INTO " + engine_.spelling().name(table.name()) + " VALUES (" + values +
                ")");
  }
}

Value Installer::stored(const std::string& column) {
  const Spelling& spell = engine_.spelling();
  const std::string sql = "SELECT " + spell.name(column) + " FROM " + spell.name("Esquema");
  const auto statement = engine_.prepare(sql, sql);
  RowStore rows(1);
  if (statement->step()) statement->read(rows);
  return rows.rows() == 0 ? Value() : rows.at(0, 0);
}

std::string Installer::valueText(const Value& value) const {
  if (value.isNull()) return "NULL";
  return value.isText() ? engine_.spelling().text(value.text()) : value.text();
}

}  // namespace fidaleon::store
