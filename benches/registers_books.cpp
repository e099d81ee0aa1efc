// rooms: registers support store sqlite
// The books of each register, on a file: what is done in a book, in one of 20,000 entries beside
// one of 1,000 and with 1,000 books beside 2; and the collection of a book beside a hand-written
// loop. Names of registers as arguments, all of them otherwise: "Bautismo".

#include <malloc.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

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
#include "registers/requests/frmSolicitudes.h"
#include "store/sqlite/SqliteEngine.h"

namespace {

using namespace fidaleon;

constexpr int MANY = 20000;
constexpr int FEW = 1000;
constexpr int NEW_ENTRIES = 100;

std::size_t allocated() {
  const auto heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
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

/// The collection of a book as it would be written by hand: its statement built, one call a cell,
/// a slim record for each row.
class ByHand : public store::SqliteEngine {
 public:
  using SqliteEngine::SqliteEngine;
  struct Entry {
    int key;
    std::array<std::string, 10> cells;
    bool annulled;
  };
  std::vector<Entry> read(const std::string& sql, std::span<const int> places) {
    std::vector<Entry> entries;
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle(), sql.c_str(), -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) {
      Entry& entry = entries.emplace_back();
      entry.key = sqlite3_column_int(statement, places.front());
      entry.annulled = sqlite3_column_int(statement, places.back()) != 0;
      for (std::size_t c = 1; c + 1 < places.size(); ++c)
        entry.cells[c] = reinterpret_cast<const char*>(sqlite3_column_text(statement, places[c]));
    }
    sqlite3_finalize(statement);
    return entries;
  }
  std::vector<int> places(const std::string& sql, auto columns) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle(), sql.c_str(), -1, &statement, nullptr);
    std::vector<int> places;
    for (const auto& column : columns)
      for (int i = sqlite3_column_count(statement) - 1; i >= 0; --i)
        if (sqlite3_stricmp(sqlite3_column_name(statement, i), column.nombre) == 0) {
          places.push_back(i);
          break;
        }
    sqlite3_finalize(statement);
    return places;
  }
};

/// A register with its last book open in dialogs, and the times of what is done there.
template <class Record>
class Books : bench::World {
 public:
  using Times = std::vector<std::pair<const char*, double>>;

  Books(const DescripcionAlmacen<Record>& store, int books, int perBook)
      : store_(store), book_(books), perBook_(perBook) {
    connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
    bench::FilledRegister(*connection, store.forma, books * perBook, perBook);
    user.answerAnything(forms::Answer::Yes);
  }
  ~Books() {
    for (const std::string& problem : user.problems()) std::printf("%s\n", problem.c_str());
  }

  Times times() {
    Times times{{"abrir la lista", bench::milliseconds(5, [&] { list([](auto&) {}); })},
                {"proponer posición", propose()},
                {"guardar una y proponer", storeOne()}};
    if (const auto* requests = origenSolicitudes(&store_.forma.sacramento))
      times.emplace_back("pasar 100 solicitudes", moveRequests(*requests));
    connection->Execute(sentencia(store_.forma.sacramento, "UPDATE {Libros} SET Nuevo=false"));
    times.emplace_back("número tecleado desde la lista", keyInListedEntry());
    times.emplace_back("eliminar una de la lista", removeOne());
    times.emplace_back("aceptar la lista con 100 nuevas", acceptNew());
    return times;
  }

  void collection() {
    const auto ours = [&] { return items().size(); };
    ByHand engine(file(), store::SqliteEngine::Access::Existing);
    const auto byHand = [&] {
      const std::string sql = store_.sqlLista(book_);
      return engine.read(sql, places_).size();
    };
    places_ = engine.places(store_.sqlLista(book_), store_.lista.columnas);
    bench::ratio("colección de un libro de 20.000 / bucle a mano",
                 bench::inTurn(
                     5, [&] { complete(ours()); }, [&] { complete(byHand()); }),
                 1.3);
    const std::size_t before = allocated();
    list([&](forms::FormDriver&) {
      bench::line("memoria de esa lista abierta",
                  bench::shown(static_cast<double>(allocated() - before) / 1e6, " MB"), "-", "-",
                  "<= 20 MB", allocated() - before <= 20'000'000);
    });
  }

 private:
  void complete(std::size_t found) const {
    if (found < static_cast<std::size_t>(perBook_)) std::printf("faltan partidas\n");
  }
  PartidasListadas<Record> items() {
    PartidasListadas<Record> items;
    almacen().cargar(book_, items);
    return items;
  }
  Almacen<Record> almacen() { return {contexto, *connection, store_}; }
  Record entry(std::int32_t book, int position) {
    return bench::newEntry(
        store_, "Luis", "Zubiri",
        {0, book, book == 0 ? 1 : 0, std::to_string(position), std::to_string(position), false});
  }

  void list(const std::function<void(forms::FormDriver&)>& act) {
    const auto dialog = propiedadesDeLibro(store_.forma.sacramento)(contexto);
    dialog->conBaseDatos = connection.get();
    dialog->lngLibro = book_;
    user.expectForm(dialog->name(), [&](forms::FormDriver& d) {
      complete(static_cast<std::size_t>(dialog->msgPartidas.rowCount()));
      act(d);
      if (!d.closed()) d.form().Unload();
    });
    dialog->Show();
  }

  double propose() {
    Head head(user);
    PosicionPartida position = positionOf(head);
    return bench::milliseconds(5,
                               [&] {
                                 for (int i = 0; i < 20; ++i) position.RellenarFolioyNumero();
                               }) /
           20;
  }
  double storeOne() {
    Head head(user);
    PosicionPartida position = positionOf(head);
    position.RellenarFolioyNumero();
    return bench::milliseconds(
               5,
               [&] {
                 for (int i = 0; i < 20; ++i) {
                   std::vector<Record> items{entry(book_, std::stoi(head.folio.text()))};
                   bool jump = false;
                   almacen().grabar(items, jump);
                   position.RellenarFolioyNumero();
                 }
               }) /
           20;
  }
  PosicionPartida positionOf(Head& head) {
    head.institucion.setListIndex(head.institucion.addItem("San Pedro", 1));
    head.libro.setListIndex(head.libro.addItem("L" + std::to_string(book_), book_));
    PosicionPartida position(
        contexto, store_.forma.sacramento,
        {head.institucion, head.libro, head.folio, head.numero, head.pestanas, head.aviso, {}});
    position.abrir(*connection, FDAPI::cCOrigen::PRINCIPAL);
    return position;
  }

  double keyInListedEntry() {
    double time = 0;
    list([&](forms::FormDriver& d) {
      user.expectForm(std::string("frmPartida") + store_.forma.sacramento.palabra,
                      [&](forms::FormDriver& e) {
                        const auto keys = [&] { e.type("txtLibro(2)", "77777"); };
                        keys();
                        time = bench::milliseconds(5, keys) / 5;
                        e.form().Unload();
                      });
      d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS);
      d.click("cmdPartidas(0)");
    });
    return time;
  }
  double removeOne() {
    double time = 0;
    list([&](forms::FormDriver& d) {
      d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS);
      time = bench::milliseconds(5, [&] { d.click("cmdPartidas(3)"); });
    });
    return time;
  }
  double acceptNew() {
    int last = 10 * perBook_;
    double best = 1e300;
    for (int run = 0; run < 3; ++run) {
      auto collection = items();
      for (int i = 0; i < NEW_ENTRIES; ++i) collection.push_back(entry(book_, ++last));
      bool jump = false;
      best = std::min(best, bench::milliseconds(1, [&] { almacen().grabar(collection, jump); }));
    }
    return best;
  }
  double moveRequests(const OrigenSolicitudes& requests) {
    std::vector<Record> waiting;
    for (int i = 0; i < NEW_ENTRIES; ++i) {
      waiting.push_back(entry(0, 0));
      ponerOperacion(waiting.back(), FDAPI::cCOperacion::ANADIRSOLICITUD);
    }
    bool jump = false;
    almacen().grabar(waiting, jump);
    double time = 0;
    user.expectForm("frmSolicitudes", [&](forms::FormDriver& d) {
      d.choose("cboInstitucion", "San Pedro");
      d.tab("mstSolicitudes", 1);
      d.click("cmdMover(1)");
      time = bench::milliseconds(1, [&] { d.click("cmdBoton(0)"); });
    });
    frmSolicitudes dialog(contexto);
    dialog.conBaseDatos = connection.get();
    dialog.Origen = requests.origen;
    dialog.Show();
    return time;
  }

  const DescripcionAlmacen<Record>& store_;
  std::int32_t book_;
  int perBook_;
  std::vector<int> places_;
};

template <class Record>
void measure(const DescripcionAlmacen<Record>& store) {
  using Times = typename Books<Record>::Times;
  const auto grow = [](const char* how, const Times& much, const Times& little, double list) {
    for (std::size_t i = 0; i < much.size(); ++i)
      bench::growth(std::string(much[i].first) + how, much[i].second, little[i].second,
                    i == 0 ? list : 1.5);
  };
  std::printf("%s | | | | |\n", store.forma.registro);
  Times inOne;
  {
    Books<Record> many(store, 1, MANY);
    many.collection();
    inOne = many.times();
  }
  bench::within("abrir la lista de un libro de 20.000", inOne.front().second, 50);
  bench::within("aceptarla con 100 nuevas", inOne.back().second, 100);
  grow(", 20.000 en el libro frente a 1.000", inOne, Books<Record>(store, 1, FEW).times(), 20);
  grow(", 1.000 libros frente a 2", Books<Record>(store, 1000, 20).times(),
       Books<Record>(store, 2, 20).times(), 1.2);
}

}  // namespace

int main(int argc, char** argv) {
  const auto one = [&](const auto& store) {
    const std::string name = store.forma.sacramento.palabra;
    if (argc == 1 || std::any_of(argv + 1, argv + argc, [&](const char* a) { return name == a; }))
      measure(store);
  };
  one(ALMACEN_BAUTISMO);
  one(ALMACEN_CONFIRMACION);
  one(ALMACEN_MATRIMONIO);
  one(ALMACEN_DEFUNCION);
}
