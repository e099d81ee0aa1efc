// rooms: documents registers support sqlite
// Rows of a whole printed book and of its index, from the store to the reports database, beside
// the same done by hand with prepared statements and remembered towns.

#include <sqlite3.h>

#include <array>
#include <map>
#include <stdexcept>

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "documents/BautismoColumns.h"
#include "documents/BautismoStatements.h"
#include "documents/cInformes.h"
#include "forms/ScriptedUser.h"
#include "store/Open.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace {

using namespace fidaleon;
using documents::Column;
using documents::Source;

constexpr int ENTRIES = 10000;
constexpr int RUNS = 5;

void must(bool ok) {
  if (!ok) throw std::runtime_error("the hand-written side failed");
}

/// A user in front of a display that nobody watches.
class Nobody : public forms::ScriptedUser {
 public:
  void progressMove(std::int64_t) override {}
};

/// A parish with one book, spread over many towns and dates, and what a document needs around it.
struct Parish {
  Parish() {
    con->BeginTrans();
    con->Execute(
        "INSERT INTO Institucion (Nombre, InstitucionNombre, InstitucionTipo, CodMunicipio, "
        "Diocesis) VALUES (\"San Pedro\", \"San Pedro Apóstol\", \"Parroquia de\", 1, \"Alcalá\")");
    for (int n = 1; n <= 60; ++n)
      con->Execute("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (\"Villanueva " +
                   std::to_string(n) + "\", " + std::to_string(1 + n % 52) + ")");
    con->Execute(
        "INSERT INTO Libro_Bautismo (CodInstitucion, Nombre, FechaCreacion) VALUES (1, \"1\", "
        "\"19980101\")");
    for (int n = 1; n <= ENTRIES; ++n) bench::insertBaptism(*con, n, 1, n);
    // Two children a week, born some days before.
    for (int n = 1; n <= ENTRIES; ++n) variety(n);
    con->CommitTrans();
  }
  void variety(int n) {
    const std::string id = std::to_string(n);
    const std::string town = std::to_string(1 + n % 60);
    const std::string day = std::to_string(1900 + n / 104) + std::to_string(10 + n % 3);
    con->Execute("UPDATE Bautismo SET FechaBautismo=\"" + day + std::to_string(10 + n % 18) +
                 "\" WHERE IDBautismo=" + id);
    con->Execute("UPDATE Bautismo_Hijo SET FechaNac=\"" + day + std::to_string(10 + n % 11) +
                 "\", CodMunicipioNac=" + town + " WHERE CodBautismo=" + id);
    con->Execute("UPDATE Bautismo_Padres SET CodMunicipio=" + town +
                 ", Abuelo=\"Pedro García\", "
                 "Abuela=\"María Luisa Ruiz\", CodMunicipioAbuelo=" +
                 town + ", CodMunicipioAbuela=" + town + " WHERE IDPadres=" + id);
    con->Execute("UPDATE Bautismo_Madres SET CodMunicipio=" + town +
                 ", Abuelo=\"Juan Pérez\", "
                 "Abuela=\"Carmen Díaz\", CodMunicipioAbuelo=" +
                 town + ", CodMunicipioAbuela=" + town + " WHERE IDMadres=" + id);
  }
  void empty() { reports->Execute("DELETE * FROM Documentos_Bautismo"); }
  std::int64_t rows() {
    return reports->Execute("SELECT * FROM Documentos_Bautismo").RecordCount();
  }

  FDAPI::cConfig config;
  Nobody user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  Entorno entorno{user, host, settings, clock, {}};
  Contexto contexto{entorno};
  std::unique_ptr<store::Connection> con = store::memoryDatabase(store::parishSchema());
  std::unique_ptr<store::Connection> reports = store::memoryDatabase(store::reportsSchema());
  cInformes informes{contexto};
};

/// A copy of a database, worked on with the bare library.
class ByHand : public store::SqliteEngine {
 public:
  explicit ByHand(store::Connection& original) : SqliteEngine(Unnamed::Memory) {
    copyFrom(dynamic_cast<store::SqliteEngine&>(original.engine()));
  }
  sqlite3_stmt* prepared(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    must(sqlite3_prepare_v2(handle(), sql.c_str(), -1, &statement, nullptr) == SQLITE_OK);
    return statement;
  }
};

/// The hand-written loop: one prepared SELECT, one prepared INSERT, towns remembered.
class HandWrittenBook {
 public:
  explicit HandWrittenBook(Parish& parish)
      : parish_(*parish.con),
        reports_(*parish.reports),
        fidaleon_(parish.contexto.fidaleon()),
        dates_(parish.host.create_cInformes()) {
    std::string sql = documents::bookStatement(1);
    read_ = parish_.prepared(sql);
    place_ = parish_.prepared(
        "SELECT Provincia.Nombre, Municipio.Nombre FROM Municipio, Provincia WHERE IDMunicipio=? "
        "AND IDProvincia=CodProvincia");
    std::string names;
    std::string marks;
    for (const Column& column : columns_) {
      names += (names.empty() ? "" : ", ") + std::string(column.name);
      marks += marks.empty() ? "?" : ",?";
      positions_.push_back(position(column.field));
    }
    insert_ =
        reports_.prepared("INSERT INTO Documentos_Bautismo (" + names + ") VALUES (" + marks + ")");
  }
  ~HandWrittenBook() {
    for (sqlite3_stmt* statement : {read_, place_, insert_}) sqlite3_finalize(statement);
  }
  HandWrittenBook(const HandWrittenBook&) = delete;
  HandWrittenBook& operator=(const HandWrittenBook&) = delete;

  void run() {
    places_.clear();
    reports_.run("BEGIN IMMEDIATE");
    while (sqlite3_step(read_) == SQLITE_ROW) writeRow();
    sqlite3_reset(read_);
    reports_.run("COMMIT");
  }
  void empty() { reports_.run("DELETE FROM Documentos_Bautismo"); }

 private:
  struct Place {
    std::string province;
    std::string town;
  };

  int position(const std::string& field) {
    for (int i = 0; i < sqlite3_column_count(read_); ++i)
      if (sqlite3_stricmp(sqlite3_column_name(read_, i), field.c_str()) == 0) return i;
    throw std::runtime_error(field);
  }
  std::string field(int at) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(read_, at));
    return text ? std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(read_, at)))
                : std::string();
  }
  const Place& place(int id) {
    const auto known = places_.find(id);
    if (known != places_.end()) return known->second;
    Place found{"---", "---"};
    sqlite3_bind_int(place_, 1, id);
    if (sqlite3_step(place_) == SQLITE_ROW) {
      found.province = reinterpret_cast<const char*>(sqlite3_column_text(place_, 0));
      found.town = reinterpret_cast<const char*>(sqlite3_column_text(place_, 1));
    }
    sqlite3_reset(place_);
    return places_.emplace(id, std::move(found)).first->second;
  }
  std::string valueOf(const Column& column, int at) {
    switch (column.source) {
      case Source::ShortDate:
        return fidaleon_->stringdate(field(at));
      case Source::LongDate:
        return dates_->FechaNumAFechaLetra(field(at));
      case Source::Town:
        return place(sqlite3_column_int(read_, at)).town;
      case Source::Province:
        return place(sqlite3_column_int(read_, at)).province;
      case Source::ChildWord:
        return documents::WORDS_BOOK.child(field(at));
      case Source::BornWord:
        return documents::WORDS_BOOK.born(field(at));
      default:
        return field(at);
    }
  }
  void writeRow() {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      std::string& value = values_[i];
      value = valueOf(columns_[i], positions_[i]);
      sqlite3_bind_text(insert_, static_cast<int>(i) + 1, value.data(),
                        static_cast<int>(value.size()), SQLITE_STATIC);
    }
    must(sqlite3_step(insert_) == SQLITE_DONE);
    sqlite3_reset(insert_);
  }

  ByHand parish_;
  ByHand reports_;
  std::unique_ptr<FDAPI::cFidaleon> fidaleon_;
  std::unique_ptr<FDAPI::cInformes> dates_;
  documents::Columns columns_ = documents::bautismoBook();
  std::vector<int> positions_;
  std::vector<std::string> values_ = std::vector<std::string>(columns_.size());
  std::map<int, Place> places_;
  sqlite3_stmt* read_ = nullptr;
  sqlite3_stmt* place_ = nullptr;
  sqlite3_stmt* insert_ = nullptr;
};

}  // namespace

int main() {
  Parish parish;
  HandWrittenBook byHand(parish);
  bench::Pair book;
  for (int run = 0; run < RUNS; ++run) {
    parish.empty();
    byHand.empty();
    book.limit = std::min(book.limit, bench::milliseconds(1, [&] { byHand.run(); }));
    book.ours = std::min(book.ours, bench::milliseconds(1, [&] {
                           parish.informes.ImprimirLibroBautismo(*parish.con, *parish.reports, 1);
                         }));
  }
  bench::ratio("filas de un libro de 10.000 bautismos / bucle escrito a mano", book, 2);
  bool complete = parish.rows() == ENTRIES;
  double index = 1e300;
  for (int run = 0; run < RUNS; ++run) {
    parish.empty();
    index = std::min(index, bench::milliseconds(1, [&] {
                       parish.informes.ImprimirIndiceLibroBautismo(*parish.con, *parish.reports, 1);
                     }));
  }
  bench::within("índice de 10.000 bautismos", index, 1000);
  complete = complete && parish.rows() == ENTRIES;
  return complete && parish.user.problems().empty() ? 0 : 1;
}
