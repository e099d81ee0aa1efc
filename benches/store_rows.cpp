// rooms: registers store sqlite
// Rows in and out through the connection, beside the same done by hand against the library.

#include <sqlite3.h>

#include <stdexcept>
#include <vector>

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "store/Open.h"
#include "store/sqlite/SqliteEngine.h"

namespace {

using namespace fidaleon;

constexpr int kRows = 100000;
constexpr int kRuns = 5;

void must(bool ok) {
  if (!ok) throw std::runtime_error("the hand-written side failed");
}

/// An empty database of our schema, opened by hand as well: the limit pays for the same indexes,
/// checks and collations.
class ByHand : public store::SqliteEngine {
 public:
  explicit ByHand(store::Connection& original) : SqliteEngine(Unnamed::Memory) {
    copyFrom(dynamic_cast<store::SqliteEngine&>(original.engine()));
  }
  sqlite3_stmt* prepared(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    must(sqlite3_prepare_v2(handle(), sql, -1, &statement, nullptr) == SQLITE_OK);
    return statement;
  }
};

void insertOurs(store::Connection& connection, const std::vector<std::string>& statements) {
  connection.BeginTrans();
  for (const std::string& sql : statements) connection.Execute(sql);
  connection.CommitTrans();
}

constexpr const char* kInsert =
    "INSERT INTO Bautismo (CodPadres, CodMadres, CodMatrimonio, InstitucionSolicitud, "
    "FechaBautismo, Padrino, Madrina, Ministro, Parroquia, CodMunicipio, Diocesis, "
    "NotasMarginales, Observaciones, CodLibro, Folio, Numero, Anulada, EdadPadrino, EdadMadrina, "
    "ParroquiaDomicilioPadrino, ParroquiaDomicilioMadrina, ProfesionPadrino, NaturalPadrino, "
    "EstatPadrino, ProfesionMadrina, NaturalMadrina, EstatMadrina, MinistroCargo) VALUES "
    "(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)";

/// Column positions, from 1, that hold numbers.
bool isNumber(int column) {
  return column <= 4 || column == 10 || column == 14 || column == 15 || column == 17;
}

std::vector<std::string> valuesOf(int n) {
  const std::string id = std::to_string(n);
  return {id,
          id,
          id,
          "0",
          "20030504",
          "Antonio " + bench::pick(n, 1) + " Romero",
          "Dolores " + bench::pick(n, 2) + " Gil",
          "D. Manuel Ortega Prieto",
          "San Pedro Apóstol",
          "1",
          "Alcalá de Henares",
          "Contrajo matrimonio en la parroquia de Santa María el 4 de mayo de 2001",
          "---",
          std::to_string(1 + n % 5),
          std::to_string(1 + n / 50),
          std::to_string(1 + n / 5),
          "0",
          "34",
          "31",
          "San Pedro",
          "Santa María",
          "carpintero",
          "Alcalá",
          "casado",
          "modista",
          "Alcalá",
          "casada",
          "Párroco"};
}

void insertByHand(ByHand& db, const std::vector<std::vector<std::string>>& rows,
                  const std::vector<std::vector<int>>& numbers) {
  db.run("BEGIN IMMEDIATE");
  sqlite3_stmt* statement = db.prepared(kInsert);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (int c = 1; c <= 28; ++c) {
      const std::string& text = rows[i][static_cast<std::size_t>(c - 1)];
      if (isNumber(c)) {
        sqlite3_bind_int(statement, c, numbers[i][static_cast<std::size_t>(c - 1)]);
      } else {
        sqlite3_bind_text(statement, c, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
      }
    }
    must(sqlite3_step(statement) == SQLITE_DONE);
    sqlite3_reset(statement);
  }
  sqlite3_finalize(statement);
  db.run("COMMIT");
}

void measureInsert() {
  std::vector<std::string> statements;
  std::vector<std::vector<std::string>> rows;
  std::vector<std::vector<int>> numbers;
  for (int n = 1; n <= kRows; ++n) {
    rows.push_back(valuesOf(n));
    std::vector<int> parsed(28);
    for (int c = 1; c <= 28; ++c) {
      if (isNumber(c))
        parsed[static_cast<std::size_t>(c - 1)] =
            std::stoi(rows.back()[static_cast<std::size_t>(c - 1)]);
    }
    numbers.push_back(parsed);
    statements.push_back(
        bench::entryStatement(n, 1 + n % 5, 1 + n / 50, std::to_string(1 + n / 5)));
  }
  bench::Pair best;
  for (int run = 0; run < kRuns; ++run) {
    const auto connection = store::memoryDatabase(store::parishSchema());
    ByHand db(*connection);
    best.limit =
        std::min(best.limit, bench::milliseconds(1, [&] { insertByHand(db, rows, numbers); }));
    best.ours =
        std::min(best.ours, bench::milliseconds(1, [&] { insertOurs(*connection, statements); }));
  }
  bench::ratio("insertar 100.000 bautismos (fila de 28 columnas)", best, 1.35);
}

long readByHand(ByHand& db) {
  long sum = 0;
  sqlite3_stmt* statement = db.prepared("SELECT * FROM Bautismo ORDER BY IDBautismo");
  std::vector<std::string> texts(29);
  std::vector<long> integers(29);
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int c = 0; c < 29; ++c) {
      const auto i = static_cast<std::size_t>(c);
      if (sqlite3_column_type(statement, c) == SQLITE_INTEGER) {
        integers[i] = sqlite3_column_int64(statement, c);
        sum += integers[i];
      } else {
        texts[i].assign(reinterpret_cast<const char*>(sqlite3_column_text(statement, c)),
                        static_cast<std::size_t>(sqlite3_column_bytes(statement, c)));
        sum += static_cast<long>(texts[i].size());
      }
    }
  }
  sqlite3_finalize(statement);
  return sum;
}

long readOurs(store::Connection& connection) {
  static constexpr const char* names[] = {"IDBautismo",
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
  long sum = 0;
  auto set = connection.Execute("SELECT * FROM Bautismo ORDER BY IDBautismo");
  std::vector<std::string> texts(29);
  for (; !set.EOF_(); set.MoveNext()) {
    for (int c = 0; c < 29; ++c) {
      if (c < 5 || c == 10 || c == 14 || c == 15 || c == 17) {
        sum += set.integer(names[c]);
      } else {
        texts[static_cast<std::size_t>(c)] = set.text(names[c]);
        sum += static_cast<long>(texts[static_cast<std::size_t>(c)].size());
      }
    }
  }
  return sum;
}

void measureRead() {
  const auto connection = store::memoryDatabase(store::parishSchema());
  connection->BeginTrans();
  for (int n = 1; n <= kRows; ++n) {
    connection->Execute(bench::entryStatement(n, 1 + n % 5, 1 + n / 50, std::to_string(1 + n / 5)));
  }
  connection->CommitTrans();
  ByHand db(*connection);
  must(readOurs(*connection) == readByHand(db));
  const bench::Pair pair = bench::inTurn(
      kRuns, [&] { readOurs(*connection); }, [&] { readByHand(db); });
  bench::ratio("leer 100.000 bautismos, todas las columnas por nombre", pair, 1.3);
}

}  // namespace

int main() {
  measureInsert();
  measureRead();
}
