// rooms: paper store
// A book of 10,000 entries and its index to PDF, with every column of an entry filled.

#include <QApplication>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "benches/Bench.h"
#include "paper/Report.h"
#include "store/Open.h"

namespace {

using namespace fidaleon;

constexpr int kEntries = 10000;

const std::vector<std::string>& surnames() {
  static const std::vector<std::string> all{
      "Álvarez", "Benítez", "Cano", "Domínguez", "Expósito", "Fernández de Córdoba",
      "García",  "Herrera", "Lara", "Muñoz",     "Núñez",    "Ortega",
      "Pérez",   "Ruiz",    "Sanz", "Torres",    "Vega",     "Zamora"};
  return all;
}

const std::string& surname(int n) {
  return surnames()[static_cast<std::size_t>(n) % surnames().size()];
}

void insertEntries(store::Connection& reports) {
  reports.BeginTrans();
  for (int i = 0; i < kEntries; ++i) {
    const std::string first = surname(i * static_cast<int>(surnames().size()) / kEntries);
    const std::string father = first + "\", \"" + surname(i + 3);
    const std::string mother = surname(i + 7) + "\", \"" + surname(i + 11);
    reports.Execute(
        "INSERT INTO Documentos_Bautismo (InstitucionNombre, InstitucionTipo, Letra, Año, Libro, "
        "Folio, Numero, NombreHijo, PrimerApellidoHijo, SegundoApellidoHijo, FechaBautismoCorta, "
        "FechaBautismoLarga, ParroquiaBaut, PoblacionBaut, ProvinciaBaut, Diocesis, Ministro, "
        "[Al niño/A la niña], [Nacido/Nacida], FechaNacLarga, HoraNac, DireccionNac, "
        "PoblacionNac, ProvinciaNac, NombrePadre, PrimerApellidoPadre, SegundoApellidoPadre, "
        "PoblacionPadre, ProvinciaPadre, NombreMadre, PrimerApellidoMadre, SegundoApellidoMadre, "
        "PoblacionMadre, ProvinciaMadre, DireccionPadres, PoblacionPadres, ProvinciaPadres, "
        "ParroquiaMatr, PoblacionMatr, ProvinciaMatr, FechaMatrLarga, AbueloPaterno, "
        "PoblacionAbueloPaterno, AbuelaPaterna, PoblacionAbuelaPaterna, AbueloMaterno, "
        "PoblacionAbueloMaterno, AbuelaMaterna, PoblacionAbuelaMaterna, Padrino, Madrina, "
        "ProvinciaAbueloPaterno, ProvinciaAbuelaPaterna, ProvinciaAbueloMaterno, "
        "ProvinciaAbuelaMaterna) VALUES (\"Nuestra Señora de la Asunción\", \"Parroquia de\", \"" +
        first.substr(0, first[0] < 0 ? 2 : 1) + "\", \"1987\", \"Libro XXIII\", \"" +
        std::to_string(i / 4 + 1) + "\", \"" + std::to_string(i + 1) +
        "\", \"María del Carmen\", \"" + first + "\", \"" + surname(i + 7) +
        "\", \"12/10/1987\", \"12 de octubre de 1987\", \"Nuestra Señora de la Asunción\", "
        "\"Alcalá de Henares\", \"Madrid\", \"Madrid-Alcalá\", \"José Ignacio Gutiérrez\", "
        "\"a la niña\", \"nacida\", \"3 de septiembre de 1987\", \"14:35\", \"Hospital Príncipe "
        "de Asturias\", \"Alcalá de Henares\", \"Madrid\", \"Francisco Javier\", \"" +
        father + "\", \"Priego\", \"Córdoba\", \"Ana María\", \"" + mother +
        "\", \"Sigüenza\", \"Guadalajara\", \"calle Mayor, 24\", \"Alcalá de Henares\", "
        "\"Madrid\", \"Santa María la Mayor\", \"Alcalá de Henares\", \"Madrid\", "
        "\"8 de junio de 1985\", \"Antonio Lara Ruiz\", \"Priego\", \"Dolores Muñoz Sanz\", "
        "\"Cabra\", \"Manuel Ortega Gil\", \"Sigüenza\", \"Pilar Gómez Íñiguez\", \"Atienza\", "
        "\"Luis Alfonso Ruiz\", \"Mercedes Muñoz\", \"Córdoba\", \"Córdoba\", \"Guadalajara\", "
        "\"Guadalajara\")");
  }
  reports.CommitTrans();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const auto reports = store::memoryDatabase(store::reportsSchema());
  insertEntries(*reports);
  const QTemporaryDir folder;
  const std::string file = folder.filePath(QStringLiteral("a.pdf")).toStdString();
  paper::ReportOptions options;
  options.composition = paper::ReportOptions::Composition::AsNeeded;
  options.values[QStringLiteral("Institucion")] = QStringLiteral("Parroquia de la Asunción");
  const auto report = [&](const char* name) {
    return paper::Report(*reports, "templates", name, QStringLiteral("Libro"), options);
  };

  int pages = 0;
  const double book = bench::milliseconds(1, [&] {
    const paper::Report whole = report("libro_bautismo");
    whole.savePdf(file);
    pages = whole.pageCount();
  });
  const double perSecond = pages * 1e3 / book;
  bench::line("libro de 10.000 partidas: páginas por segundo", bench::shown(perSecond, ""), "400",
              bench::shown(perSecond / 400, ""), ">= 1", perSecond >= 400);
  bench::within("libro de 10.000 partidas: primera página",
                bench::milliseconds(
                    3, [&] { report("libro_bautismo").composeMore(std::chrono::milliseconds(0)); }),
                500);
  bench::within("índice de 10.000 líneas: PDF",
                bench::milliseconds(3, [&] { report("indice_libro_bautismo").savePdf(file); }),
                1000);
  return 0;
}
