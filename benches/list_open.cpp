// rooms: registers support store
// The dialog of a book of 20,000 baptisms: opened, filled anew after a change, closed.

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "benches/World.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/cBaseDatos.h"

namespace {

using namespace fidaleon;

constexpr int ENTRIES = 20000;

struct Parish : bench::World {
  Parish() {
    connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
    connection->Execute(
        "INSERT INTO Libro_Bautismo (codinstitucion, codFormato, codTipoNombre, nombre, "
        "fechacreacion, Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente) VALUES (1, 3, 4, "
        "\"Libro 1\", \"19900101\", 1, 0, 1, 1)");
    connection->BeginTrans();
    for (int i = 0; i < ENTRIES; ++i) bench::insertBaptism(*connection, i + 1, 1, i);
    connection->CommitTrans();
  }
};

void load(Parish& parish) {
  ColeccionBautismo items;
  cBaseDatos(parish.contexto).GrabarBasedatosColeccion(*parish.connection, 1, items);
  if (items.size() != ENTRIES) std::printf("faltan partidas\n");
}

void open(Parish& parish) {
  frmPropiedadesLibroBautismo dialog(parish.contexto);
  dialog.conBaseDatos = parish.connection.get();
  dialog.lngLibro = 1;
  dialog.Load();
  if (dialog.msgPartidas.rowCount() != ENTRIES) std::printf("faltan filas\n");
  dialog.Unload();
}

/// Removing the last entry fills the grid anew.
double refill(Parish& parish) {
  frmPropiedadesLibroBautismo dialog(parish.contexto);
  dialog.conBaseDatos = parish.connection.get();
  dialog.lngLibro = 1;
  dialog.Load();
  const double milliseconds = bench::milliseconds(5, [&] {
    dialog.msgPartidas.setRow(dialog.msgPartidas.rowCount());
    dialog.cmdPartidas[frmPropiedadesLibro::ELIMINAR].click();
  });
  dialog.Unload();
  return milliseconds;
}

}  // namespace

int main() {
  Parish parish;
  bench::ratio("abrir y cerrar la lista de un libro de 20.000 bautismos",
               bench::inTurn(
                   5, [&] { open(parish); }, [&] { load(parish); }),
               1.5);
  bench::within("quitar una partida de esa lista y volver a mostrarla", refill(parish), 100);
}
