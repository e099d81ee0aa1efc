// rooms: registers store sqlite
// Rows in and out through the connection, beside the same done by hand against the library: on
// files, with slim records that are made anew, one call a cell, and the text of each statement
// written on both sides.

#include <sqlite3.h>

#include <array>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "benches/Folder.h"
#include "store/Open.h"
#include "store/sqlite/SqliteEngine.h"

namespace {

using namespace fidaleon;

constexpr int kRows = 100000;
constexpr int kRuns = 5;

void must(bool ok) {
  if (!ok) throw std::runtime_error("the hand-written side failed");
}

/// A row of baptisms as somebody would hold it who needs nothing else: its nine numbers, its texts.
constexpr std::array<const char*, 29> kColumns = {"IDBautismo",
                                                  "CodPadres",
                                                  "CodMadres",
                                                  "CodMatrimonio",
                                                  "InstitucionSolicitud",
                                                  "FechaBautismo",
                                                  "Padrino",
                                                  "Madrina",
                                                  "Ministro",
                                                  "Parroquia",
                                                  "CodMunicipio",
                                                  "Diocesis",
                                                  "NotasMarginales",
                                                  "Observaciones",
                                                  "CodLibro",
                                                  "Folio",
                                                  "Numero",
                                                  "Anulada",
                                                  "EdadPadrino",
                                                  "EdadMadrina",
                                                  "ParroquiaDomicilioPadrino",
                                                  "ParroquiaDomicilioMadrina",
                                                  "ProfesionPadrino",
                                                  "NaturalPadrino",
                                                  "EstatPadrino",
                                                  "ProfesionMadrina",
                                                  "NaturalMadrina",
                                                  "EstatMadrina",
                                                  "MinistroCargo"};

constexpr bool isNumber(std::size_t column) {
  return column < 5 || column == 10 || column == 14 || column == 15 || column == 17;
}

struct Slim {
  std::array<std::int64_t, 9> numbers;
  std::array<std::string, 20> texts;
  friend bool operator==(const Slim&, const Slim&) = default;
};

/// Hands each column of `row` to `number` or `text` in turn.
template <class Row, class Number, class Text>
void eachCell(Row& row, const Number& number, const Text& text) {
  std::size_t numbers = 0, texts = 0;
  for (std::size_t c = 0; c < kColumns.size(); ++c) {
    if (isNumber(c))
      number(c, row.numbers[numbers++]);
    else
      text(c, row.texts[texts++]);
  }
}

/// A file of our schema and with our settings, so that the limit pays for the same indexes, checks,
/// collations and syncs; all else is the bare library.
class ByHand : public store::SqliteEngine {
 public:
  explicit ByHand(const std::filesystem::path& file) : SqliteEngine(file, Access::Existing) {}
  ~ByHand() override { sqlite3_finalize(statement_); }
  sqlite3_stmt* prepared(const char* sql) {
    sqlite3_finalize(statement_);
    must(sqlite3_prepare_v2(handle(), sql, -1, &statement_, nullptr) == SQLITE_OK);
    return statement_;
  }

 private:
  sqlite3_stmt* statement_ = nullptr;
};

Slim slimOf(const cBautismo& b) {
  return {{0, b.CodPadres, b.CodMadres, b.CodMatrimonio, b.CodInstitucionBautismo,
           b.CodPoblacionBautismo, b.CodLibroBautismo, std::stoi(b.FolioBautismo), 0},
          {b.FechaBautismo,
           b.PadrinoBautismo,
           b.MadrinaBautismo,
           b.MinistroBautismo,
           b.ParroquiaBautismo,
           b.DiocesisBautismo,
           b.NotasMarginalesBautismo,
           b.ObservacionesBautismo,
           b.NumeroBautismo,
           b.EdadPadrino,
           b.EdadMadrina,
           b.ParroquiaDomicilioPadrino,
           b.ParroquiaDomicilioMadrina,
           b.ProfesionPadrino,
           b.NaturalPadrino,
           b.EstatPadrino,
           b.ProfesionMadrina,
           b.NaturalMadrina,
           b.EstatMadrina,
           b.MinistroCargo}};
}

std::vector<cBautismo> entries() {
  std::vector<cBautismo> all;
  for (int n = 1; n <= kRows; ++n)
    all.push_back(bench::baptism(n, 1 + n % 5, 1 + n / 50, std::to_string(1 + n / 5)));
  return all;
}

void insertOurs(store::Connection& connection, const std::vector<cBautismo>& rows) {
  connection.BeginTrans();
  for (const cBautismo& row : rows) connection.Execute(sqlInsertar(TABLA_BAUTISMO, row));
  connection.CommitTrans();
}

std::string insertion() {
  std::string names, values;
  for (std::size_t c = 1; c < kColumns.size(); ++c) {
    names += std::string(c > 1 ? "," : "") + kColumns[c];
    values += c > 1 ? ",?" : "?";
  }
  return "INSERT INTO Bautismo (" + names + ") VALUES (" + values + ")";
}

void insertOne(sqlite3_stmt* statement, const Slim& row) {
  eachCell(
      row,
      [&](std::size_t c, std::int64_t n) {
        if (c > 0) sqlite3_bind_int64(statement, static_cast<int>(c), n);
      },
      [&](std::size_t c, const std::string& s) {
        sqlite3_bind_text(statement, static_cast<int>(c), s.data(), static_cast<int>(s.size()),
                          SQLITE_STATIC);
      });
  must(sqlite3_step(statement) == SQLITE_DONE);
  sqlite3_reset(statement);
}

void insertByHand(ByHand& db, const std::vector<Slim>& rows) {
  sqlite3_stmt* statement = db.prepared(insertion().c_str());
  db.run("BEGIN IMMEDIATE");
  for (const Slim& row : rows) insertOne(statement, row);
  db.run("COMMIT");
}

void measureInsert(const std::vector<cBautismo>& rows, const std::vector<Slim>& slim) {
  bench::Pair best;
  for (int run = 0; run < kRuns; ++run) {
    const bench::Folder folder;
    const auto connection = store::createDatabase(folder / "a.fidaleon", store::parishSchema());
    store::createDatabase(folder / "b.fidaleon", store::parishSchema());
    ByHand db(folder / "b.fidaleon");
    best.limit = std::min(best.limit, bench::milliseconds(1, [&] { insertByHand(db, slim); }));
    best.ours = std::min(best.ours, bench::milliseconds(1, [&] { insertOurs(*connection, rows); }));
  }
  bench::ratio("insertar 100.000 bautismos con su sentencia (28 columnas)", best, 1.3);
}

std::vector<Slim> readByHand(ByHand& db) {
  std::vector<Slim> rows;
  sqlite3_stmt* statement = db.prepared("SELECT * FROM Bautismo ORDER BY IDBautismo");
  while (sqlite3_step(statement) == SQLITE_ROW)
    eachCell(
        rows.emplace_back(),
        [&](std::size_t c, std::int64_t& n) {
          n = sqlite3_column_int64(statement, static_cast<int>(c));
        },
        [&](std::size_t c, std::string& s) {
          s = reinterpret_cast<const char*>(sqlite3_column_text(statement, static_cast<int>(c)));
        });
  return rows;
}

std::vector<Slim> readOurs(store::Connection& connection) {
  std::vector<Slim> rows;
  for (auto set = connection.Execute("SELECT * FROM Bautismo ORDER BY IDBautismo"); !set.EOF_();
       set.MoveNext())
    eachCell(
        rows.emplace_back(), [&](std::size_t c, std::int64_t& n) { n = set.integer(kColumns[c]); },
        [&](std::size_t c, std::string& s) { s = set.text(kColumns[c]); });
  return rows;
}

void measureRead(const std::vector<cBautismo>& entries) {
  const bench::Folder folder;
  const auto connection = store::createDatabase(folder / "a.fidaleon", store::parishSchema());
  insertOurs(*connection, entries);
  ByHand db(folder / "a.fidaleon");
  must(readOurs(*connection) == readByHand(db));
  const bench::Pair pair = bench::inTurn(
      kRuns, [&] { readOurs(*connection); }, [&] { readByHand(db); });
  bench::ratio("leer 100.000 bautismos, todas las columnas por nombre", pair, 1.3);
}

}  // namespace

int main() {
  const std::vector<cBautismo> rows = entries();
  std::vector<Slim> slim;
  for (const cBautismo& row : rows) slim.push_back(slimOf(row));
  measureInsert(rows, slim);
  measureRead(rows);
}
