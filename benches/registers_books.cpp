// rooms: registers support store sqlite
// The books of each register: the list of one of 20,000, its dialog, and one entry more with the
// next position, on registers of growing size.

#include <sqlite3.h>

#include <algorithm>

#include "benches/Bench.h"
#include "benches/Registers.h"
#include "benches/World.h"
#include "registers/allocation/PosicionPartida.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/cBaseDatos.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"
#include "registers/death/frmPartidaDefuncion.h"
#include "registers/marriage/frmPartidaMatrimonio.h"
#include "store/sqlite/SqliteEngine.h"

namespace {

using namespace fidaleon;

constexpr int OF_ONE_BOOK = 20000;
constexpr int PER_BOOK = 1000;

struct Parish : bench::World {
  Parish(const FormaPartida& form, int entries, int perBook) {
    connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
    bench::FilledRegister(*connection, form, entries, perBook);
    user.answerAnything(forms::Answer::Yes);
  }
};

/// The same rows without us: the bare query, as many of its columns read as a list shows.
class ByHand : public store::SqliteEngine {
 public:
  explicit ByHand(store::Engine& from) : SqliteEngine(Unnamed::Memory) {
    copyFrom(dynamic_cast<store::SqliteEngine&>(from));
  }
  std::size_t read(const std::string& sql) {
    std::size_t rows = 0;
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle(), sql.c_str(), -1, &statement, nullptr);
    for (; sqlite3_step(statement) == SQLITE_ROW; ++rows)
      for (int c = 0; c < std::min(8, sqlite3_column_count(statement)); ++c)
        if (!sqlite3_column_text(statement, c)) std::printf("falta un valor\n");
    sqlite3_finalize(statement);
    return rows;
  }
};

template <class Record>
void measureList(const DescripcionAlmacen<Record>& store, const std::string& of) {
  Parish parish(store.forma, OF_ONE_BOOK, OF_ONE_BOOK);
  std::size_t found = 0;
  const auto ours = [&] {
    PartidasListadas<Record> items;
    Almacen(parish.contexto, *parish.connection, store).cargar(1, items);
    found = items.size();
  };
  ByHand bare(parish.connection->engine());
  const auto query = [&] {
    if (bare.read(store.sqlLista(1)) != OF_ONE_BOOK) std::printf("faltan filas\n");
  };
  bench::ratio("colección de un libro de 20.000 " + of, bench::inTurn(5, ours, query), 2.0);
  if (found != OF_ONE_BOOK) std::printf("faltan partidas\n");

  const CrearPropiedadesLibro create = propiedadesDeLibro(store.forma.sacramento);
  if (!create) return;
  const auto open = [&] {
    const auto dialog = create(parish.contexto);
    dialog->conBaseDatos = parish.connection.get();
    dialog->lngLibro = 1;
    dialog->Load();
    if (dialog->msgPartidas.rowCount() != OF_ONE_BOOK) std::printf("faltan filas\n");
    dialog->Unload();
  };
  bench::ratio("abrir y cerrar esa lista en su diálogo", bench::inTurn(5, open, ours), 1.5);
}

/// The head of an entry dialog: what the position routines need.
struct Head : forms::Form {
  explicit Head(forms::UserInterface& ui) : Form(ui, "frmCabecera") {}
  forms::ComboBox institucion{*this, "cboInstitucion"};
  forms::ComboBox libro{*this, "cboLibro"};
  forms::TextBox folio{*this, "txtFolio"};
  forms::TextBox numero{*this, "txtNumero"};
  forms::TabStrip pestanas{*this, "mst", {"GENERAL"}};
  forms::Label aviso{*this, "lblNumeroRepetido", ""};
};

/// One entry stored and the next position proposed, a hundred times.
template <class Record>
double hundredMore(const DescripcionAlmacen<Record>& store, int entries) {
  Parish parish(store.forma, entries, PER_BOOK);
  Head head(parish.user);
  const int book = entries / PER_BOOK;
  head.institucion.setListIndex(head.institucion.addItem("San Pedro", 1));
  head.libro.setListIndex(head.libro.addItem("L" + std::to_string(book), book));
  PosicionPartida position(
      parish.contexto, store.forma.sacramento,
      {head.institucion, head.libro, head.folio, head.numero, head.pestanas, head.aviso, {}});
  position.abrir(*parish.connection, FDAPI::cCOrigen::PRINCIPAL);
  position.RellenarFolioyNumero();
  const auto one = [&] {
    std::vector<Record> items{bench::newEntry(
        store, "Luis", "Zubiri", {0, book, 0, head.folio.text(), head.numero.text(), false})};
    bool jump = false;
    Almacen(parish.contexto, *parish.connection, store).grabar(items, jump);
    position.RellenarFolioyNumero();
  };
  for (int i = 0; i < 10; ++i) one();
  return bench::milliseconds(3, [&] {
    for (int i = 0; i < 100; ++i) one();
  });
}

template <class Record>
void measure(const DescripcionAlmacen<Record>& store, const std::string& of) {
  measureList(store, of);
  bench::growth("guardar 100 " + of + " y proponer posición: 500.000 frente a 1.000",
                hundredMore(store, 500000), hundredMore(store, 1000), 1.5);
}

}  // namespace

int main() {
  measure(ALMACEN_BAUTISMO, "bautismos");
  measure(ALMACEN_CONFIRMACION, "confirmaciones");
  measure(ALMACEN_MATRIMONIO, "matrimonios");
  measure(ALMACEN_DEFUNCION, "defunciones");
}
