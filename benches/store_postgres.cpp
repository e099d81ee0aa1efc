// rooms: registers support store
// Rows in and out of a server beside the same done by hand against the library, prepared, in one
// transaction; and how often the server is waited for, with the time that a slow network adds.

#include <vector>

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "benches/ServerWorld.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/LibroNuevo.h"
#include "store/Transaction.h"
#include "store/dialect/LiteralLifter.h"
#include "store/dialect/Rewriter.h"

namespace {

using namespace fidaleon;

constexpr int kRows = 20000;
constexpr int kRuns = 5;

class ByHand {
 public:
  explicit ByHand(const store::ServerAddress& address) : link_(address) {
    server = bench::processOf(link_);
  }
  void run(const char* sql) { link_.run(sql); }
  store::Answer prepared(const std::string& sql, const std::vector<const char*>& values) {
    if (sql == known_) return link_.exec({name_, {}, values});
    known_ = sql;
    name_ += "m";
    return link_.carryOut({{name_, sql, values}});
  }
  int server;

 private:
  store::Link link_;
  std::string known_, name_;
};

std::vector<cBautismo> entries() {
  std::vector<cBautismo> all;
  for (int n = 1; n <= kRows; ++n)
    all.push_back(bench::baptism(n, 1 + n % 5, 1 + n / 50, std::to_string(1 + n / 5)));
  return all;
}

/// The statement of an entry cut into its columns and its values, which are all in quotes or
/// numbers.
struct Insertion {
  std::string sql;
  std::vector<std::vector<std::string>> rows;
};

Insertion insertions(const std::vector<cBautismo>& entries) {
  Insertion all;
  store::LiteralLifter lifter;
  for (const cBautismo& entry : entries) {
    const std::string statement = sqlInsertar(TABLA_BAUTISMO, entry);
    lifter.lift(statement);
    if (all.sql.empty())
      all.sql = store::Rewriter(store::parishSchema(), store::PostgresSpelling())
                    .rewrite(lifter.shape().text)
                    .sql;
    auto& row = all.rows.emplace_back();
    for (const store::Literal& value : lifter.literals())
      row.push_back(value.kind == store::Literal::Kind::Text ? std::string(value.text)
                                                             : std::to_string(value.integer));
  }
  return all;
}

void insertByHand(ByHand& db, const Insertion& all) {
  db.run("BEGIN");
  std::vector<const char*> values;
  for (const auto& row : all.rows) {
    values.clear();
    for (const std::string& value : row) values.push_back(value.c_str());
    db.prepared(all.sql, values);
  }
  db.run("COMMIT");
}

void insertOurs(store::Connection& connection, const std::vector<cBautismo>& rows) {
  connection.BeginTrans();
  for (const cBautismo& row : rows) connection.Execute(sqlInsertar(TABLA_BAUTISMO, row));
  connection.CommitTrans();
}

/// A row as somebody would hold it who needs nothing else.
struct Slim {
  std::vector<std::int64_t> numbers;
  std::vector<std::string> texts;
  friend bool operator==(const Slim&, const Slim&) = default;
};

/// Which columns are numbers, in the order of the catalogue.
std::vector<bool> numbers() {
  std::vector<bool> all;
  for (const store::Column& c : store::parishSchema().find("Bautismo")->columns())
    all.push_back(!store::isText(c.type));
  return all;
}

std::vector<Slim> readByHand(ByHand& db) {
  const store::Answer answer =
      db.prepared("SELECT * FROM \"Bautismo\" ORDER BY \"IDBautismo\"", {});
  const std::vector<bool> isNumber = numbers();
  std::vector<Slim> rows;
  for (int r = 0; r < answer.rows(); ++r) {
    Slim& row = rows.emplace_back();
    for (int c = 0; c < answer.columns(); ++c)
      if (isNumber[static_cast<std::size_t>(c)])
        row.numbers.push_back(answer.integer(r, c));
      else
        row.texts.emplace_back(answer.text(r, c));
  }
  return rows;
}

std::vector<Slim> readOurs(store::Connection& connection) {
  const std::vector<bool> isNumber = numbers();
  std::vector<Slim> rows;
  for (auto set = connection.Execute("SELECT * FROM Bautismo ORDER BY IDBautismo"); !set.EOF_();
       set.MoveNext()) {
    Slim& row = rows.emplace_back();
    for (int c = 0; c < set.FieldCount(); ++c)
      if (isNumber[static_cast<std::size_t>(c)])
        row.numbers.push_back(set.integer(c));
      else
        row.texts.push_back(set.text(c));
  }
  return rows;
}

void measureRows() {
  const std::vector<cBautismo> all = entries();
  const Insertion byHand = insertions(all);
  bench::Pair insert, read;
  for (int run = 0; run < kRuns; ++run) {
    bench::Server ours, theirs;
    const auto connection = ours.connect(ours.database.address());
    const int server = bench::processOf(ours.engine->link());
    ByHand db(theirs.database.address());
    const auto here = bench::withServer(server), there = bench::withServer(db.server);
    const auto least = [](double& best, const std::function<void()>& work, const auto& time) {
      best = std::min(best, bench::milliseconds(1, work, time));
    };
    least(
        insert.limit, [&] { insertByHand(db, byHand); }, there);
    least(
        insert.ours, [&] { insertOurs(*connection, all); }, here);
    if (readOurs(*connection) != readByHand(db)) throw std::runtime_error("they differ");
    least(
        read.limit, [&] { readByHand(db); }, there);
    least(
        read.ours, [&] { readOurs(*connection); }, here);
  }
  bench::ratio("servidor: insertar 20.000 bautismos (programa y servidor)", insert, 1.25);
  bench::ratio("servidor: leer 20.000 bautismos (programa y servidor)", read, 1.3);
}

/// A desk that enters baptisms through the dialog.
struct Desk : bench::ServerWorld {
  explicit Desk(int there) : ServerWorld(true) {
    connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
    insertarLibro(*connection, BAUTISMO, {1, 3, 4, "L1", "19000101", true});
    store::Transaction whole(*connection);
    for (int n = 1; n <= there; ++n) bench::insertBaptism(*connection, n, 1, n);
    whole.commit();
    engine->run("ANALYZE");
    user.answerAnything(forms::Answer::Yes);
  }

  void enter(int count, const std::function<void()>& around) {
    user.expectForm("frmPartidaBautismo", [&](forms::FormDriver& d) {
      d.choose("cboBautismo(22)", "San Pedro");
      d.choose("cboBautismo(23)", "L1");
      for (int i = 0; i < count; ++i) {
        const std::string salt{static_cast<char>('a' + ++entered)};
        d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
        d.type("txtBautismo(7)", "Luis");
        d.type("txtBautismo(8)", "Zu" + salt + "biri");
        d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
        d.type("txtBautismo(11)", "Juan");
        d.type("txtBautismo(12)", "Zu" + salt + "biri");
        around();
        d.click("cmdBautismo(0)");
        around();
      }
      d.click("cmdBautismo(1)");
    });
    frmPartidaBautismo dialog(contexto);
    dialog.conBaseDatos = connection.get();
    dialog.Operacion = FDAPI::cCOperacion::ANADIR;
    dialog.Origen = FDAPI::cCOrigen::PRINCIPAL;
    dialog.Show();
    for (const std::string& problem : user.problems()) std::printf("%s\n", problem.c_str());
  }

  int entered = 0;
};

/// By the clock: what is waited for costs no processor time.
void measureJourneys() {
  Desk desk(1000);
  desk.enter(2, [] {});  // what is prepared once is
  const auto journeys = [&] { return static_cast<double>(desk.engine->link().journeys()); };
  const auto count = [&](double aim, const std::string& what, const std::function<void()>& work) {
    double before = journeys();
    work();
    const double taken = journeys() - before;
    bench::line(what + ": viajes al servidor", bench::shown(taken, ""), "-", "-",
                aim > 0 ? "<= " + bench::shown(aim, "") : "-", aim <= 0 || taken <= aim);
    for (const int delay : {1, 20}) {
      desk.relay.setDelay(std::chrono::milliseconds(delay));
      before = bench::wall();
      work();
      bench::line(what + ", red de " + std::to_string(delay) + " ms",
                  bench::shown(bench::wall() - before, " ms"), "-", "-", "-", true);
    }
    desk.relay.setDelay({});
  };
  int n = 2000;
  count(10, "guardar un bautismo con sus cinco filas", [&] {
    store::Transaction whole(*desk.connection);
    ++n;
    bench::insertBaptism(*desk.connection, n, 1, n);
    whole.commit();
  });
  double before = 0, accepted = 0;
  bool inside = false;
  desk.enter(1, [&] {
    if (inside) accepted = journeys() - before;
    inside = !inside;
    before = journeys();
  });
  bench::line("aceptar un bautismo en su diálogo: viajes al servidor", bench::shown(accepted, ""),
              "-", "-", "-", true);
  count(0, "leer la lista de un libro de 1.000", [&] {
    auto list = desk.connection->Execute(
        "SELECT Bautismo.IDBautismo, Bautismo.Folio, Bautismo.Numero, Bautismo_Hijo.Nombre FROM "
        "Bautismo, Bautismo_Hijo WHERE CodLibro=1 AND IDBautismo=CodBautismo ORDER BY Folio, "
        "Val(Numero), IDBautismo");
    list.RecordCount();
  });
}

}  // namespace

int main() {
  measureRows();
  measureJourneys();
}
