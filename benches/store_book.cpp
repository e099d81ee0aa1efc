// rooms: store sqlite
// A book's list, one new baptism and the next position, on registers of growing size.

#include <sqlite3.h>

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "store/Open.h"
#include "store/sqlite/SqliteEngine.h"

namespace {

using namespace fidaleon;

std::string listStatement(int book) {
  return "SELECT Bautismo.IDBautismo, Bautismo.Folio as Folio, Bautismo.Numero, "
         "Bautismo.FechaBautismo, Bautismo.Anulada, Bautismo_Hijo.Nombre, "
         "Bautismo_Hijo.PrimerApellido, Bautismo_Hijo.SegundoApellido FROM Bautismo, "
         "Bautismo_Hijo, Bautismo_Madres, Bautismo_Padres, Bautismo_Matrimonio, Libro_Bautismo "
         "WHERE CodLibro=" +
         std::to_string(book) +
         " AND idBautismo=codBautismo AND IdLibroBautismo=CodLibro AND "
         "Bautismo_Madres.IDMadres=Bautismo.CodMadres AND "
         "Bautismo_Padres.IDPadres=Bautismo.CodPadres AND "
         "Bautismo_Matrimonio.IDMatrimonio=Bautismo.CodMatrimonio ORDER BY Folio, Val(Numero), "
         "IDBautismo";
}

std::string text(const std::string& salt) {
  return "'" + salt + "' || char(65 + n * 7 % 26) || 'ez'";
}

/// `entries` baptisms in books of at most `perBook`; a folio holds ten.
std::unique_ptr<store::Connection> registers(int entries, int perBook) {
  auto connection = store::memoryDatabase(store::parishSchema());
  const auto fill = [&](const std::string& target, const std::string& values, int rows) {
    connection->engine().run(
        "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c "
        "WHERE n < " +
        std::to_string(rows) + ") INSERT INTO " + target + " SELECT " + values + " FROM c");
  };
  const std::string per = std::to_string(perBook);
  fill("Libro_Bautismo (CodInstitucion, Nombre)", "1, n", 1 + (entries - 1) / perBook);
  fill("Bautismo_Padres (Nombre, PrimerApellido, SegundoApellido)",
       "'Juan', " + text("Gal") + ", " + text("Per"), entries);
  fill("Bautismo_Madres (Nombre, PrimerApellido, SegundoApellido)",
       "'Ana', " + text("Lop") + ", " + text("San"), entries);
  fill("Bautismo_Matrimonio (Parroquia, FechaMatr)", "'San Pedro Apóstol', '19990501'", entries);
  fill(
      "Bautismo (CodPadres, CodMadres, CodMatrimonio, CodLibro, Folio, Numero, FechaBautismo, "
      "Padrino, Madrina, Parroquia, NotasMarginales)",
      "n, n, n, 1 + (n - 1) / " + per + ", 1 + (n - 1) % " + per + " / 10, 1 + (n - 1) % " + per +
          ", 19000101 + n % 1200000, " + text("Antonio ") + ", " + text("Dolores ") +
          ", 'San Pedro Apóstol', '---'",
      entries);
  fill("Bautismo_Hijo (CodBautismo, Nombre, PrimerApellido, SegundoApellido, Sexo)",
       "n, 'José', " + text("Gal") + ", " + text("Lop") + ", 'Hombre'", entries);
  return connection;
}

struct Item {
  long id, folio;
  bool annulled;
  std::string number, date, name, first, second;
};

void measureList() {
  const auto connection = registers(60000, 20000);
  class ByHand : public store::SqliteEngine {
   public:
    explicit ByHand(store::Engine& from) : SqliteEngine(Unnamed::Memory) {
      copyFrom(dynamic_cast<store::SqliteEngine&>(from));
    }
  } db(connection->engine());
  std::size_t found = 0;
  const auto ours = [&] {
    std::vector<Item> items;
    auto set = connection->Execute(listStatement(2));
    for (; !set.EOF_(); set.MoveNext()) {
      items.push_back({set.integer("IDBautismo"), set.integer("Folio"), set.flag("Anulada"),
                       set.text("Numero"), set.text("FechaBautismo"), set.text("Nombre"),
                       set.text("PrimerApellido"), set.text("SegundoApellido")});
    }
    found = items.size();
  };
  const auto byHand = [&] {
    std::size_t rows = 0;
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(db.handle(), listStatement(2).c_str(), -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) {
      for (int c = 0; c < 8; ++c) rows += sqlite3_column_text(statement, c) != nullptr ? 0 : 1;
      ++rows;
    }
    sqlite3_finalize(statement);
    if (rows != found) std::printf("otras filas: %zu y %zu\n", rows, found);
  };
  ours();
  bench::ratio("listar un libro de 20.000 bautismos", bench::inTurn(5, ours, byHand), 2.0);
}

/// What the store does for one new baptism, and the position that is proposed for the next.
void oneMore(store::Connection& connection, int n, int book, int position) {
  bench::insertBaptism(connection, n, book, position);
  connection.Execute("SELECT MAX(IDPadres) AS ID FROM bautismo_padres WHERE Nombre = \"Juan\"");
  connection.Execute("SELECT MAX(IDMadres) AS ID FROM bautismo_madres WHERE Nombre = \"Ana\"");
  connection.Execute(
      "SELECT MAX(IDMatrimonio) AS ID FROM bautismo_matrimonio WHERE Parroquia = \"San Pedro "
      "Apóstol\"");
  connection.Execute("SELECT * FROM bautismo ORDER BY idbautismo DESC").integer("idbautismo");
  connection.Execute(
      "SELECT foliosiguiente,numerosiguiente FROM libro_bautismo WHERE "
      "idlibrobautismo=" +
      std::to_string(book));
  connection
      .Execute("SELECT IDBautismo,numero FROM bautismo WHERE folio=" +
               std::to_string(1 + position / 10) + " AND codlibro=" + std::to_string(book))
      .RecordCount();
  connection
      .Execute("SELECT IDBautismo FROM Bautismo WHERE folio=1 AND numero=\"1\" AND codlibro=" +
               std::to_string(book))
      .RecordCount();
}

double hundredMore(int entries) {
  const auto connection = registers(entries, 1000);
  int n = entries;
  const int book = 1 + (entries - 1) / 1000;
  return bench::milliseconds(7, [&] {
    for (int i = 0; i < 100; ++i, ++n) oneMore(*connection, n + 1, book, (n % 1000));
  });
}

}  // namespace

int main() {
  measureList();
  bench::growth("guardar 100 bautismos: con 500.000 frente a 1.000", hundredMore(500000),
                hundredMore(1000), 1.5);
}
