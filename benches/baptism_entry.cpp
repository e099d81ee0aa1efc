// rooms: registers support store
// One baptism through its dialog: the position proposed, the same entry looked for, five rows
// stored.

#include <string>

#include "benches/Bench.h"
#include "benches/Registers.h"
#include "benches/World.h"
#include "core/contract/Contexto.h"
#include "registers/baptism/frmPartidaBautismo.h"

namespace {

using namespace fidaleon;

struct Parish : bench::World {
  Parish(int books, int perBook) {
    connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
    bench::FilledRegister(*connection, *formaPartida(BAUTISMO), books * perBook, perBook);
    book = "L" + std::to_string(books);
    user.answerAnything(forms::Answer::Yes);
  }

  /// Opens the dialog and enters `count` baptisms one after the other.
  void enter(int count) {
    user.expectForm("frmPartidaBautismo", [&](forms::FormDriver& d) {
      d.choose("cboBautismo(22)", "San Pedro");
      d.choose("cboBautismo(23)", book);
      for (int i = 0; i < count; ++i, ++entered) {
        const std::string salt{static_cast<char>('a' + entered / 26),
                               static_cast<char>('a' + entered % 26)};  // a family of its own
        d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
        d.type("txtBautismo(7)", "Luis");
        d.type("txtBautismo(8)", "Zu" + salt + "biri");
        d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
        d.type("txtBautismo(11)", "Juan");
        d.type("txtBautismo(12)", "Zu" + salt + "biri");
        d.click("cmdBautismo(0)");
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

  std::string book;
  int entered = 0;
};

/// One baptism entered through the dialog, with the look-up of its family and of the same entry in
/// every book.
double oneThroughTheDialog(int books, int perBook) {
  Parish parish(books, perBook);
  parish.enter(5);
  return bench::milliseconds(5, [&] { parish.enter(20); }) / 20;
}

}  // namespace

int main() {
  bench::within("un bautismo por su diálogo, con 500.000 en 500 libros",
                oneThroughTheDialog(500, 1000), 5);
  bench::growth("un bautismo por su diálogo: 1.000 libros frente a 2",
                oneThroughTheDialog(1000, 20), oneThroughTheDialog(2, 20), 1.2);
}
