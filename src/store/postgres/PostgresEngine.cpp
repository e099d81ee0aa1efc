#include "store/postgres/PostgresEngine.h"

#include <algorithm>
#include <utility>

#include "store/Fence.h"
#include "store/Transfer.h"
#include "store/postgres/PostgresStatement.h"

namespace fidaleon::store {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kMostAtOnce = 200;  // statements that go along with a later one
constexpr const char* kStored = "fidaleon_guardado";
constexpr const char* kTrial = "intento";

std::string part(int depth) {
  return "parte" + std::to_string(depth);
}

constexpr int kFenceLost = sqlState("FB001");

/// The server has forgotten what it had prepared, or it does not suit the tables any more.
bool isStale(const Error& error) {
  return error.number() == sqlState("26000") || error.number() == sqlState("0A000");
}

/// A key that is given by the statement may be one that is there already.
bool setsKey(const Traits& traits, const TableFacts& facts) {
  return !facts.key.empty() && std::find(traits.sets.begin(), traits.sets.end(),
                                         Link::name(facts.key)) != traits.sets.end();
}

}  // namespace

PostgresEngine::PostgresEngine(const ServerAddress& address, const std::string& password,
                               const std::string& purpose)
    : link_(address, password, purpose) {}

std::unique_ptr<Statement> PostgresEngine::prepare(std::string_view sql, std::string_view) {
  return std::make_unique<PostgresStatement>(*this, sql);
}

/// An order is always whole, so that its opposite begins where it ends; and one row is less to send
/// than all of them, also where they have to be sorted for it.
bool PostgresEngine::sameWay(const std::string&, const std::string&) {
  return true;
}

void PostgresEngine::run(std::string_view sql) {
  if (stage_ == Stage::None) {
    takeUp();
    link_.run(std::string(sql));
    return;
  }
  if (stage_ == Stage::Wanted) open();
  if (link_.added() > 0) finish();
  wrote_ = true;
  try {
    link_.run(std::string(sql));
  } catch (const Error&) {
    giveUp();
    throw;
  }
}

/// A link that has ended while nobody used it says so when it is looked at.
void PostgresEngine::takeUp() {
  try {
    if (link_.isOpen() && link_.wait(0ms)) hear();
  } catch (const Error&) {
    // Taken up right here.
  }
  if (!link_.isOpen()) link_.renew();
  if (names_.areTooMany()) forgetNames();
  if (link_.generation() == generation_) return;
  generation_ = link_.generation();
  names_.forget();
  if (!listening_) return;
  link_.run(std::string("LISTEN ") + kStored);
  ++heard_;  // whatever was told meanwhile was not heard
}

void PostgresEngine::forgetNames() {
  names_.forget();
  if (link_.isOpen() && !link_.isBroken()) link_.run("DEALLOCATE ALL");
}

Answer PostgresEngine::finish() {
  try {
    Answer last = link_.finish();
    names_.confirm();
    return last;
  } catch (const Error&) {
    names_.takeBack();
    throw;
  }
}

/// The server has undone the transaction, or is to.
void PostgresEngine::giveUp() {
  end();
  try {
    if (link_.isOpen() && link_.inTransaction()) link_.run("ROLLBACK");
  } catch (const Error&) {
    // It undoes it with the link.
  }
}

void PostgresEngine::end() {
  stage_ = Stage::None;
  reading_ = wrote_ = false;
  transaction_ = {};
}

void PostgresEngine::open() {
  takeUp();
  stage_ = Stage::Open;
  if (reading_) return link_.add({{}, "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY"});
  // Whatever the server does by itself: what is read under the turn must be what the one before
  // has stored.
  link_.add({{}, "BEGIN ISOLATION LEVEL READ COMMITTED READ WRITE"});
  link_.add({{},
             "SELECT pg_advisory_xact_lock(" + std::to_string(kFamily) + ", " +
                 std::to_string(kWriters) + "), pg_current_xact_id(), " + ServerTransaction::kEra},
            [this](Answer& answer) {
              transaction_ = {std::string(answer.text(0, 1)), std::string(answer.text(0, 2))};
            });
  if (fence_ != nullptr) link_.add({{}, fence_->statement()});
}

bool PostgresEngine::isTextOrderOld() {
  const Answer old = link_.ask(
      "SELECT pg_has_role(collowner, 'USAGE') FROM pg_collation WHERE oid = "
      "to_regcollation('fidaleon.es') AND collversion IS DISTINCT FROM "
      "pg_collation_actual_version(oid)");
  if (old.rows() == 0) return false;
  if (old.text(0, 0) == "t") return true;
  throw Error(
      ErrorKind::ReadOnly,
      "El servidor se ha actualizado y ordena los textos de otro modo: mientras sus índices "
      "no se hagan de nuevo, podría no encontrarse a quien está. Tiene que abrir la "
      "parroquia una vez el dueño de la base de datos.");
}

void PostgresEngine::renewTextOrder() {
  run("DO $$ DECLARE t regclass; BEGIN "
      "FOR t IN SELECT oid FROM pg_class WHERE relkind = 'r' AND "
      "relnamespace = 'fidaleon'::regnamespace LOOP "
      "EXECUTE 'REINDEX TABLE ' || t; END LOOP; "
      "ALTER COLLATION fidaleon.es REFRESH VERSION; END $$");
}

void PostgresEngine::begin(int depth) {
  if (depth > 0) return savepoint("SAVEPOINT ", part(depth));
  settleDoubt();
  stage_ = Stage::Wanted;
}

void PostgresEngine::beginReading() {
  stage_ = Stage::Wanted;
  reading_ = true;
}

/// Nothing that could be refused by itself.
void PostgresEngine::savepoint(const char* what, const std::string& name) {
  if (stage_ == Stage::Wanted) open();
  link_.add({{}, what + name});
}

void PostgresEngine::rollback(int depth) {
  if (depth > 0 && stage_ == Stage::Open) {
    savepoint("ROLLBACK TO ", part(depth));
    return savepoint("RELEASE ", part(depth));
  }
  if (stage_ == Stage::Open && link_.isOpen() && link_.added() > 0) {
    try {
      link_.add({{}, "ROLLBACK"});
      finish();
    } catch (const Error&) {
      // Undone all the same.
    }
  }
  giveUp();
}

void PostgresEngine::commit(int depth) {
  if (depth > 0) return savepoint("RELEASE ", part(depth));
  if (stage_ == Stage::Wanted) return end();
  if (reading_) return rollback(0);
  try {
    if (!transaction_.isKnown()) finish();  // it has to be known before it ends
    if (wrote_) link_.add({{}, std::string("NOTIFY ") + kStored});
    link_.add({{}, "COMMIT"});
    if (wrote_) doubt_.raise(transaction_);
    finish();
    doubt_.drop();
    end();
  } catch (const Error& error) {
    const bool answered = link_.isOpen();
    giveUp();
    if (answered) doubt_.drop();
    if (!doubt_.any()) throw;
    requireStored(error);
  }
}

/// The link was lost on the way: whether the server has heard of the end it says on another.
void PostgresEngine::requireStored(const Error& error) {
  bool stored = false;
  try {
    takeUp();
    stored = doubt_.resolve(link_);
  } catch (const Error&) {
    if (!doubt_.any()) throw;
    throw notKnown();
  }
  if (!stored) throw error;
}

void PostgresEngine::settleDoubt() {
  if (!doubt_.any()) return;
  takeUp();
  if (doubt_.resolve(link_)) throw storedAfterAll();
}

void PostgresEngine::readCatalogue() {
  if (link_.added() > 0) finish();
  tables_.read(link_);
}

const TableFacts* PostgresEngine::factsOf(const std::string& table) {
  if (tables_.find(table) == nullptr) readCatalogue();
  return tables_.find(table);
}

std::string PostgresEngine::tableOf(Oid number) {
  if (tables_.name(number).empty()) readCatalogue();
  return tables_.name(number);
}

void PostgresEngine::tell(const std::string& table, const Answer& answer) {
  touchedSoFar_ += answer.touched();
  if (!touched_) return;
  for (int row = 0; row < answer.rows(); ++row) touched_(table, answer.integer(row, 0));
}

Answer PostgresEngine::carryOut(const std::string& sql, const Traits& traits, Request& request) {
  const Stage before = stage_;
  const bool own = before == Stage::None && !traits.reads;
  bool ending = false;
  for (bool again = true;; again = false) {
    try {
      if (own) begin(0);
      Answer answer = attempt(sql, traits, request);
      ending = true;
      if (own) commit(0);
      return answer;
    } catch (const Error& error) {
      if (own && inTransaction()) rollback(0);
      if (!again || ending || before == Stage::Open || !mayTryAgain(error)) throw;
      stage_ = before;
    }
  }
}

/// Nothing is lost by beginning again where nothing had begun.
bool PostgresEngine::mayTryAgain(const Error& error) {
  const bool stale = isStale(error);
  if (stale) forgetNames();
  const bool fenced = fence_ != nullptr && error.number() == kFenceLost;
  if (fenced) fence_->lost();
  return stale || fenced || !link_.isOpen();
}

Answer PostgresEngine::attempt(const std::string& sql, const Traits& traits, Request& request) {
  if (stage_ == Stage::None) {
    takeUp();
    names_.give(sql, request);
    if (request.sql.empty()) return link_.exec(request);
    link_.add(request);
    return finish();
  }
  if (stage_ == Stage::Wanted) open();
  try {
    return traits.reads ? readInside(sql, traits, request) : write(sql, traits, request);
  } catch (const Error&) {
    if (!link_.isOpen() || link_.isBroken() || !link_.inTransaction()) giveUp();
    throw;
  }
}

Answer PostgresEngine::readInside(const std::string& sql, const Traits& traits, Request& request) {
  if (!traits.harmless) return tried(sql, request, {});
  names_.give(sql, request);
  link_.add(request);
  return finish();
}

Answer PostgresEngine::write(const std::string& sql, const Traits& traits, Request& request) {
  const TableFacts* facts = factsOf(traits.table);
  const bool watched = touched_ && facts != nullptr && !facts->key.empty();
  const std::string told = watched ? sql + " RETURNING " + Link::name(facts->key) : std::string();
  const std::string& text = watched ? told : sql;
  const auto heard = [this, table = facts != nullptr ? &facts->table : &traits.table](Answer& a) {
    tell(*table, a);
  };
  wrote_ = true;
  if (!traits.harmless || facts == nullptr || !facts->harmless || setsKey(traits, *facts)) {
    tried(text, request, heard);
    return Answer();
  }
  names_.give(text, request);
  link_.add(request, heard);
  // Whether the transaction may begin is known before anything else is done in it.
  const bool first = !transaction_.isKnown();
  if (first || link_.added() > kMostAtOnce) finish();
  return Answer();
}

/// As a part of its own, so that nothing else goes with it.
Answer PostgresEngine::tried(const std::string& sql, Request& request, const Link::Heard& heard) {
  const std::size_t at = link_.added();
  Answer answer;
  link_.add({{}, std::string("SAVEPOINT ") + kTrial});
  names_.give(sql, request);
  link_.add(request, [&](Answer& a) {
    if (heard) heard(a);
    answer = std::move(a);
  });
  link_.add({{}, std::string("RELEASE ") + kTrial});
  try {
    finish();
  } catch (const Error&) {
    if (link_.isOpen() && link_.failedAt() > at)
      link_.run(std::string("ROLLBACK TO ") + kTrial + "; RELEASE " + kTrial);
    throw;
  }
  return answer;
}

void PostgresEngine::read(const std::string& sql, Request& request, Link::Reader& reader) {
  if (stage_ == Stage::None) takeUp();
  names_.give(sql, request);
  if (link_.added() > 0 || !request.sql.empty()) {
    // Known to the server first: the rows come one by one only outside of a bundle.
    if (!request.sql.empty()) link_.addPrepared(request);
    finish();
  }
  link_.read(request, reader);
}

void PostgresEngine::hear() {
  for (const Link::Notice& notice : link_.notices())
    if (notice.channel == kStored && !notice.own) ++heard_;
}

std::int64_t PostgresEngine::othersStored() {
  if (!listening_) {
    takeUp();
    link_.run(std::string("LISTEN ") + kStored);
    listening_ = true;
  }
  hear();
  return heard_;
}

/// What is known of the tables is out of date after much was written.
void PostgresEngine::prepareFor(Writing writing) {
  if (writing == Writing::Usual && stage_ == Stage::None) run("ANALYZE");
}

void PostgresEngine::backup(const std::filesystem::path& to, const Schema& schema,
                            const Progress& progress) {
  copyIntoFile(*this, to, schema, progress);
}

}  // namespace fidaleon::store
