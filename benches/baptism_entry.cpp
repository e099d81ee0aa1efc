// rooms: registers support store
// One baptism through its dialog: the position proposed, the same entry looked for, five rows
// stored. On registers of growing size, in books of one size.

#include <filesystem>
#include <string>

#include "benches/Bench.h"
#include "benches/World.h"
#include "core/contract/Contexto.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/cBaseDatos.h"
#include "store/Engine.h"

namespace {

using namespace fidaleon;

constexpr int PER_BOOK = 1000;

std::string surname(const char* salt) {
  return std::string("'") + salt + "' || char(65 + n * 7 % 26) || char(97 + n * 11 % 26) || 'ez'";
}

struct Parish : bench::World {
  explicit Parish(int entries) {
    const auto fill = [&](const std::string& target, const std::string& values, int rows) {
      connection->engine().run(
          "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < " +
          std::to_string(rows) + ") INSERT INTO " + target + " SELECT " + values + " FROM c");
    };
    const std::string per = std::to_string(PER_BOOK);
    const int books = entries / PER_BOOK;
    connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
    fill(
        "Libro_Bautismo (CodInstitucion, CodFormato, CodTipoNombre, Nombre, FechaCreacion, "
        "Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente)",
        "1, 3, 4, 'L' || n, 19000101 + n, -1, CASE WHEN n < " + std::to_string(books) +
            " THEN -1 ELSE 0 END, '1', 1",
        books);
    fill("Bautismo_Padres (Nombre, PrimerApellido, SegundoApellido, Abuelo, Abuela)",
         "'Juan', " + surname("Gal") + ", " + surname("Per") + ", '---', '---'", entries);
    fill("Bautismo_Madres (Nombre, PrimerApellido, SegundoApellido, Abuelo, Abuela)",
         "'Ana', " + surname("Lop") + ", " + surname("San") + ", '---', '---'", entries);
    fill("Bautismo_Matrimonio (Parroquia, FechaMatr)", "'San Pedro Apóstol', 19000101 + n % 900000",
         entries);
    fill(
        "Bautismo (CodPadres, CodMadres, CodMatrimonio, CodLibro, Folio, Numero, FechaBautismo, "
        "Parroquia)",
        "n, n, n, 1 + (n - 1) / " + per + ", 1 + (n - 1) % " + per + ", 1 + (n - 1) % " + per +
            ", 19000101 + n % 900000, 'San Pedro Apóstol'",
        entries);
    fill("Bautismo_Hijo (CodBautismo, Nombre, PrimerApellido, SegundoApellido, Sexo)",
         "n, 'José', " + surname("Gal") + ", " + surname("Lop") + ", 'Hombre'", entries);
    book = "L" + std::to_string(books);
    user.answerAnything(forms::Answer::Yes);
  }

  /// Opens the dialog and enters `count` baptisms one after the other.
  void enter(int count) {
    user.expectForm("frmPartidaBautismo", [&](forms::FormDriver& d) {
      d.choose("cboBautismo(22)", "San Pedro");
      d.choose("cboBautismo(23)", book);
      for (int i = 0; i < count; ++i, ++entered) {
        const std::string salt(1, static_cast<char>('a' + entered % 26));
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

/// The head of an entry dialog: what the position routines need.
struct Head : forms::Form {
  explicit Head(forms::UserInterface& ui) : Form(ui, "frmCabecera") {}
  forms::ComboBox institucion{*this, "cboInstitucion"};
  forms::ComboBox libro{*this, "cboLibro"};
  forms::TextBox folio{*this, "txtFolio"};
  forms::TextBox numero{*this, "txtNumero"};
  forms::TabStrip pestanas{*this, "mst", {"GENERAL"}};
};

/// One baptism stored and the next position proposed, a hundred times.
double hundredMore(int entries) {
  Parish parish(entries);
  Head head(parish.user);
  head.institucion.setListIndex(head.institucion.addItem("San Pedro", 1));
  head.libro.setListIndex(head.libro.addItem(parish.book, entries / PER_BOOK));
  PosicionPartida position(
      parish.contexto, BAUTISMO,
      {head.institucion, head.libro, head.folio, head.numero, head.pestanas, {}});
  position.abrir(*parish.connection, FDAPI::cCOrigen::PRINCIPAL);
  position.RellenarFolioyNumero();
  const auto one = [&] {
    cBautismo b;
    b.NombreHijo = "Luis";
    b.PrimerApellidoHijo = b.PrimerApellidoPadres = "Zubiri";
    b.NombrePadres = "Juan";
    b.NombreMadres = "Ana";
    b.ParroquiaMatrimonio = "San Pedro Apóstol";
    b.FechaBautismo = "20261122";
    b.CodLibroBautismo = entries / PER_BOOK;
    b.FolioBautismo = head.folio.text();
    b.NumeroBautismo = head.numero.text();
    b.Operacion = FDAPI::cCOperacion::ANADIR;
    ColeccionBautismo items{b};
    bool jump = false;
    cBaseDatos(parish.contexto).GrabarColeccionBasesDatos(*parish.connection, items, jump);
    position.RellenarFolioyNumero();
  };
  for (int i = 0; i < 10; ++i) one();
  return bench::milliseconds(3, [&] {
    for (int i = 0; i < 100; ++i) one();
  });
}

/// One baptism entered through the dialog, with the look-up of its family and of the same entry in
/// every book.
double oneThroughTheDialog(int entries) {
  Parish parish(entries);
  parish.enter(5);
  return bench::milliseconds(5, [&] { parish.enter(20); }) / 20;
}

void measureList() {
  Parish parish(20 * PER_BOOK);
  parish.connection->Execute("UPDATE Bautismo SET CodLibro = 1");
  ColeccionBautismo items;
  const auto ours = [&] {
    cBaseDatos(parish.contexto).GrabarBasedatosColeccion(*parish.connection, 1, items);
  };
  const auto query = [&] {
    auto rows = parish.connection->Execute(
        "SELECT Bautismo.IDBautismo, Bautismo.Folio as Folio, Bautismo.Numero, "
        "Bautismo.FechaBautismo, Bautismo.Anulada, Bautismo_Hijo.Nombre, "
        "Bautismo_Hijo.PrimerApellido, Bautismo_Hijo.SegundoApellido FROM Bautismo, "
        "Bautismo_Hijo, Bautismo_Madres, Bautismo_Padres, Bautismo_Matrimonio, Libro_Bautismo "
        "WHERE CodLibro=1 AND idBautismo=codBautismo AND IdLibroBautismo=CodLibro AND "
        "Bautismo_Madres.IDMadres=Bautismo.CodMadres AND "
        "Bautismo_Padres.IDPadres=Bautismo.CodPadres AND "
        "Bautismo_Matrimonio.IDMatrimonio=Bautismo.CodMatrimonio "
        "ORDER BY Folio, Val(Numero), IDBautismo");
    if (rows.RecordCount() != 20 * PER_BOOK) std::printf("faltan filas\n");
  };
  bench::ratio("colección de un libro de 20.000 bautismos", bench::inTurn(5, ours, query), 2.0);
}

}  // namespace

int main() {
  measureList();
  bench::growth("guardar 100 bautismos y proponer posición: 500.000 frente a 1.000",
                hundredMore(500000), hundredMore(1000), 1.5);
  bench::within("un bautismo por su diálogo, con 500.000 en 500 libros",
                oneThroughTheDialog(500000), 5);
}
