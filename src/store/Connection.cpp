#include "store/Connection.h"

#include <deque>
#include <optional>

#include "files/Identity.h"
#include "store/Coercion.h"
#include "store/Engine.h"
#include "store/PlanCache.h"
#include "store/RecordsetState.h"
#include "store/dialect/LiteralLifter.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

constexpr std::size_t kPlans = 256;
/// Enough to know at once that a look-up by key is complete, and to let go of the engine's lock.
constexpr std::int64_t kFetchedAtOnce = 2;

}  // namespace

struct Connection::Impl {
  Impl(std::unique_ptr<Engine> e, const Schema& s, std::string source)
      : engine(std::move(e)),
        schema(s),
        dataSource(std::move(source)),
        identity(files::identityOf(dataSource)) {}
  ~Impl() {
    open.abandon();
    plans.clear();
  }

  /// Takes the literals out of the statement and finds what is known of the rest.
  std::shared_ptr<Plan> planFor(std::string_view sql);
  void bind(const Plan& plan, Statement& statement);
  Recordset query(const std::shared_ptr<Plan>& plan);
  void change(Plan& plan);
  /// After an error the engine may have undone the whole transaction by itself. What follows in
  /// it must not be stored as if nothing had happened.
  void requireTransaction() const;
  /// Nothing is written, nor committed, into a file that no longer bears its name.
  void requireInPlace() const;

  std::unique_ptr<Engine> engine;
  const Schema& schema;
  std::string dataSource;
  std::optional<files::Identity> identity;  // none where the data are in no file
  OpenRecordsets open;
  PlanCache plans{kPlans};
  LiteralLifter lifter;
  std::deque<std::string> texts;
  int depth = 0;
};

std::shared_ptr<Plan> Connection::Impl::planFor(std::string_view sql) {
  if (auto plan =
          plans.recent([&](const Plan& p) { return p.proven() && lifter.liftAs(sql, p.shape()); }))
    return plan;
  lifter.lift(sql);
  const Shape& shape = lifter.shape();
  if (auto plan = plans.find(shape.text)) return plan;
  Rewriter rewriter(schema, engine->spelling());
  auto plan = std::make_shared<Plan>(shape, rewriter.rewrite(shape.text));
  plans.add(plan);
  return plan;
}

void Connection::Impl::bind(const Plan& plan, Statement& statement) {
  const Lifetime lifetime = plan.returnsRows() ? Lifetime::Brief : Lifetime::Call;
  if (!texts.empty()) texts.clear();
  int number = 0;
  for (Literal literal : lifter.literals()) {
    const Column* target = plan.targets()[static_cast<std::size_t>(number)];
    if (target != nullptr && !fits(literal, *target)) coerce(literal, *target, texts);
    statement.bind(++number, literal, lifetime);
  }
}

Recordset Connection::Impl::query(const std::shared_ptr<Plan>& plan) {
  auto statement = plan->lend(*engine);
  bind(*plan, *statement);
  statement->start();
  plan->understood(*statement);
  auto state = std::make_shared<RecordsetState>(plan, std::move(statement), open);
  state->fetch(kFetchedAtOnce + 1);
  state->keepWayBack(*engine, lifter.literals());
  return Recordset(std::move(state));
}

void Connection::Impl::change(Plan& plan) {
  requireTransaction();
  if (depth == 0) requireInPlace();
  open.drain();
  auto statement = plan.lend(*engine);
  try {
    bind(plan, *statement);
    statement->step();
    plan.understood(*statement);
  } catch (...) {
    plan.giveBack(std::move(statement));
    throw;
  }
  plan.giveBack(std::move(statement));
}

void Connection::Impl::requireTransaction() const {
  if (depth > 0 && !engine->inTransaction()) {
    throw Error(ErrorKind::Other,
                "Un error anterior deshizo los cambios que estaban en curso. No se ha guardado "
                "nada de ellos.");
  }
}

void Connection::Impl::requireInPlace() const {
  if (!identity || files::identityOf(dataSource) == identity) return;
  throw Error(ErrorKind::Missing,
              "El archivo «" + dataSource +
                  "» ya no está en su sitio: se ha borrado, se ha movido o se ha cambiado por otro "
                  "mientras el programa lo tenía abierto. No se ha guardado nada.\n\nDeje abierto "
                  "lo que tiene escrito, devuelva el archivo a su sitio y vuelva a aceptar.");
}

Connection::Connection(std::unique_ptr<Engine> engine, const Schema& schema, std::string dataSource)
    : impl_(std::make_unique<Impl>(std::move(engine), schema, std::move(dataSource))) {}

Connection::~Connection() = default;

Recordset Connection::Execute(std::string_view sql) {
  const auto plan = impl_->planFor(sql);
  if (plan->returnsRows()) return impl_->query(plan);
  impl_->change(*plan);
  return Recordset();
}

void Connection::aheadOfRemoval() {
  if (impl_->depth > 0) return;
  impl_->open.drain();
  impl_->engine->aheadOfRemoval();
}

void Connection::BeginTrans() {
  impl_->requireTransaction();
  if (impl_->depth == 0) impl_->requireInPlace();
  impl_->open.drain();
  impl_->engine->begin(impl_->depth);
  ++impl_->depth;
}

void Connection::CommitTrans() {
  if (impl_->depth == 0) throw Error(ErrorKind::Misuse, "No hay cambios pendientes que confirmar.");
  impl_->requireTransaction();
  if (impl_->depth == 1) impl_->requireInPlace();
  impl_->open.drain();
  impl_->engine->commit(impl_->depth - 1);
  --impl_->depth;
}

void Connection::RollbackTrans() {
  if (impl_->depth == 0) throw Error(ErrorKind::Misuse, "No hay cambios pendientes que deshacer.");
  impl_->open.drain();
  const int depth = --impl_->depth;
  if (impl_->engine->inTransaction()) impl_->engine->rollback(depth);
}

bool Connection::inTransaction() const {
  return impl_->depth > 0;
}

Property Connection::Properties(std::string_view name) const {
  if (text::equalsNoCase(name, "DATA SOURCE")) return {impl_->dataSource};
  throw Error(ErrorKind::UnknownName,
              "La conexión no tiene la propiedad «" + std::string(name) + "».");
}

const Schema& Connection::schema() const {
  return impl_->schema;
}

Engine& Connection::engine() {
  return *impl_->engine;
}

void Connection::wrapEngine(
    const std::function<std::unique_ptr<Engine>(std::unique_ptr<Engine>)>& wrap) {
  impl_->open.drain();
  impl_->plans.clear();
  impl_->engine = wrap(std::move(impl_->engine));
}

}  // namespace fidaleon::store
