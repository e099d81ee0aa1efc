#include "store/Transfer.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "store/LargeWrite.h"
#include "store/Open.h"
#include "store/RowCounts.h"
#include "store/Spelling.h"
#include "store/schema/Installer.h"
#include "store/sqlite/FileBackend.h"
#include "store/sqlite/SqliteEngine.h"

namespace fidaleon::store {

namespace {

constexpr std::int64_t kReadAtOnce = 256;
constexpr int kParametersAtOnce = 2000;
constexpr std::int64_t kCommitted = 2048;  // rows between two commits

/// The names of the columns, with commas.
std::string columnsOf(const Table& table, const Spelling& spell) {
  std::string all;
  for (const Column& column : table.columns())
    all += (all.empty() ? "" : ", ") + spell.name(column.name);
  return all;
}

const Column* counterOf(const Table& table) {
  const auto& columns = table.columns();
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [](const Column& c) { return c.type == Type::Counter; });
  return found == columns.end() ? nullptr : &*found;
}

/// As both engines give it.
Value normal(const Value& value, Type type) {
  if (value.isNull() || isText(type)) return value;
  return type == Type::Double ? Value(value.real()) : Value(value.integer());
}

Literal literal(const Value& value, const std::string& text) {
  if (value.isNull()) return {};
  if (value.isInteger()) return {Literal::Kind::Integer, value.integer(), 0, {}};
  if (value.isReal()) return {Literal::Kind::Real, 0, value.real(), {}};
  return {Literal::Kind::Text, 0, 0, text};
}

/// Goes through the rows of a table as they were entered, with few in memory.
class Rows {
 public:
  Rows(Engine& engine, const Table& table)
      : table_(table), slice_(static_cast<int>(table.columns().size())) {
    const Spelling& spell = engine.spelling();
    const std::string name = spell.name(table.name());
    const Column* const counter = counterOf(table);
    const std::string sql =
        "SELECT " + columnsOf(table, spell) + " FROM " + name + " ORDER BY " +
        (counter != nullptr ? spell.name(counter->name) : spell.entryOrder(name));
    statement_ = engine.prepare(sql, sql);
  }

  bool next() {
    if (++at_ < slice_.rows()) return true;
    at_ = 0;
    slice_ = RowStore(slice_.width());
    while (more_ && slice_.rows() < kReadAtOnce) {
      more_ = statement_->step();
      if (more_) statement_->read(slice_);
    }
    return slice_.rows() > 0;
  }
  Value value(int column) const {
    return normal(slice_.at(at_, column), table_.columns()[static_cast<std::size_t>(column)].type);
  }
  int width() const { return slice_.width(); }
  bool isAs(const Rows& other) const {
    for (int i = 0; i < width(); ++i)
      if (value(i) != other.value(i)) return false;
    return true;
  }

 private:
  const Table& table_;
  std::unique_ptr<Statement> statement_;
  RowStore slice_;
  std::int64_t at_ = -1;
  bool more_ = true;
};

/// Adds rows to a table, many with one statement.
class Adding {
 public:
  Adding(Engine& engine, const Table& table)
      : engine_(engine),
        table_(table),
        own_(!engine.inTransaction()),
        width_(static_cast<int>(table.columns().size())),
        atOnce_(std::max(1, kParametersAtOnce / width_)) {}
  ~Adding() {
    try {
      if (own_ && engine_.inTransaction()) engine_.rollback(0);
    } catch (const Error&) {
      // The engine undoes it when it is closed.
    }
  }
  Adding(const Adding&) = delete;
  Adding& operator=(const Adding&) = delete;

  void add(const Rows& rows) {
    if (own_ && !engine_.inTransaction()) engine_.begin(0);
    for (int i = 0; i < width_; ++i) waiting_.push_back(rows.value(i));
    ++since_;
    if (rowsWaiting() == atOnce_) write();
    if (since_ >= kCommitted) end();
  }
  void end() {
    write();
    if (own_ && engine_.inTransaction()) engine_.commit(0);
    since_ = 0;
  }

 private:
  int rowsWaiting() const { return static_cast<int>(waiting_.size()) / width_; }
  void write();
  std::unique_ptr<Statement> prepare(int rows);

  Engine& engine_;
  const Table& table_;
  bool own_;
  int width_;
  int atOnce_;
  std::int64_t since_ = 0;
  std::vector<Value> waiting_;
  std::unique_ptr<Statement> many_;
};

std::unique_ptr<Statement> Adding::prepare(int rows) {
  const Spelling& spell = engine_.spelling();
  std::string sql =
      "INSERT INTO " + spell.name(table_.name()) + " (" + columnsOf(table_, spell) + ") VALUES ";
  for (int i = 0; i < rows * width_; ++i) {
    sql += i % width_ != 0 ? ", " : i == 0 ? "(" : "), (";
    sql += spell.parameter(i + 1);
  }
  sql += ")";
  return engine_.prepare(sql, sql);
}

void Adding::write() {
  const int rows = rowsWaiting();
  if (rows == 0) return;
  std::unique_ptr<Statement> few;
  if (rows != atOnce_) few = prepare(rows);
  if (!few && !many_) many_ = prepare(rows);
  Statement& statement = few ? *few : *many_;
  std::vector<std::string> texts(waiting_.size());
  for (std::size_t i = 0; i < waiting_.size(); ++i) {
    if (waiting_[i].isText()) texts[i] = waiting_[i].text();
    statement.bind(static_cast<int>(i) + 1, literal(waiting_[i], texts[i]), Lifetime::Call);
  }
  statement.step();
  statement.reset();
  waiting_.clear();
}

/// Tells of the rows of all tables how many are done.
class Way {
 public:
  Way(Engine& from, const Schema& schema, const Progress& progress, const AtTable& at,
      TransferStage stage)
      : progress_(progress),
        at_(at),
        stage_(stage),
        counts_(rowCounts(from, schema)),
        all_(std::max<std::int64_t>(
            1, std::accumulate(counts_.begin(), counts_.end(), std::int64_t{}))) {}
  /// The tables come in the order of the schema.
  void enter(const Table& table) {
    if (at_) at_(stage_, table.name(), counts_.at(table_));
    ++table_;
  }
  void step() {
    if (++done_ % kReadAtOnce == 0) tell();
  }
  void tell() const {
    if (progress_ &&
        !progress_(static_cast<int>(std::min<std::int64_t>(1000, 1000 * done_ / all_))))
      throw Error(ErrorKind::Cancelled, "Se ha cancelado.");
  }
  /// Those of a table are gone through again.
  void back(std::int64_t rows) { done_ -= rows; }

 private:
  const Progress& progress_;
  const AtTable& at_;
  TransferStage stage_;
  std::vector<std::int64_t> counts_;
  std::size_t table_ = 0;
  std::int64_t all_;
  std::int64_t done_ = 0;
};

/// How many rows at the beginning of a table are the same in both; `source` then stands behind
/// them. Nothing when the table has others.
bool passSame(Rows& source, Engine& to, const Table& table, Way& way, std::int64_t& same) {
  Rows there(to, table);
  while (there.next()) {
    if (!source.next() || !source.isAs(there)) return false;
    ++same;
    way.step();
  }
  return true;
}

void copyTable(Engine& from, Engine& to, const Table& table, Way& way, const Telling& tell) {
  auto source = std::make_unique<Rows>(from, table);
  std::int64_t same = 0;
  if (!passSame(*source, to, table, way, same)) {
    if (tell) tell("La tabla «" + table.name() + "» no es como era: se copia de nuevo.");
    way.back(same);
    to.run("DELETE FROM " + to.spelling().name(table.name()));
    source.reset();
    source = std::make_unique<Rows>(from, table);
  }
  Adding adding(to, table);
  while (source->next()) {
    adding.add(*source);
    way.step();
  }
  adding.end();
  if (counterOf(table) == nullptr) return;
  const std::int64_t last = onlyNumber(from, from.spelling().lastKey(table));
  if (last > 0) to.run(to.spelling().keepKeysAfter(table, last));
}

void requireSameTable(Engine& a, Engine& b, const Table& table, Way& way) {
  Rows one(a, table);
  Rows other(b, table);
  for (std::int64_t row = 1;; ++row) {
    const bool more = one.next();
    if (more != other.next() || (more && !one.isAs(other)))
      throw Error(ErrorKind::NotADatabase, "La tabla «" + table.name() +
                                               "» no tiene lo mismo que "
                                               "el original en la fila " +
                                               std::to_string(row) + ".");
    if (!more) return;
    way.step();
  }
}

void requireVersion(Engine& engine, const Schema& schema) {
  if (Installer(engine, schema).version() == schema.version()) return;
  throw Error(ErrorKind::NotADatabase,
              "La parroquia es de una versión anterior del programa. Ábrala una vez con esta "
              "versión, ciérrela y vuelva a intentarlo.");
}

}  // namespace

void copyRows(Engine& from, Engine& to, const Schema& schema, const Progress& progress,
              const Telling& tell, const AtTable& at) {
  const LargeWrite bulk(to);
  Way way(from, schema, progress, at, TransferStage::Copying);
  for (const Table& table : schema.tables()) {
    way.enter(table);
    try {
      copyTable(from, to, table, way, tell);
    } catch (const Error& e) {
      if (e.kind() == ErrorKind::Cancelled || e.kind() == ErrorKind::Connection) throw;
      throw Error(e.kind(), "Tabla «" + table.name() + "»: " + e.what(), e.number());
    }
    way.tell();
  }
}

void requireSameRows(Engine& a, Engine& b, const Schema& schema, const Progress& progress,
                     const AtTable& at) {
  Way way(a, schema, progress, at, TransferStage::Comparing);
  for (const Table& table : schema.tables()) {
    way.enter(table);
    requireSameTable(a, b, table, way);
  }
}

void copyIntoFile(Engine& from, const std::filesystem::path& to, const Schema& schema,
                  const Progress& progress) {
  SqliteEngine copy(to, SqliteEngine::Access::Create);
  Installer(copy, schema).create();
  copyRows(from, copy, schema, progress);
  copy.leaveWriteAheadLog();
}

std::vector<std::int64_t> moveDatabase(Backend& from, Backend& to, const Schema& schema,
                                       const TransferWatch& watch) {
  const Progress& progress = watch.progress;
  const auto source = from.open();
  requireVersion(*source, schema);
  source->beginReading();
  {
    const Backend::Unfinished target = to.unfinished(schema);
    if (watch.begun) watch.begun();
    if (target.resumed && watch.tell) watch.tell("Se sigue donde se quedó la otra vez.");
    copyRows(*source, *target.engine, schema, partOf(progress, 0, 550),
             target.resumed ? watch.tell : Telling(), watch.at);
    requireSameRows(*source, *target.engine, schema, partOf(progress, 550, 990), watch.at);
    target.engine->requireSound(Check::Quick, {});
  }
  if (progress && !progress(990)) throw Error(ErrorKind::Cancelled, "Se ha cancelado.");
  to.finish(schema);
  std::vector<std::int64_t> rows = rowCounts(*source, schema);
  if (rowCounts(*to.open(), schema) != rows)
    throw Error(ErrorKind::NotADatabase, "Lo que ha quedado no es lo que había en el original.");
  return rows;
}

}  // namespace fidaleon::store
