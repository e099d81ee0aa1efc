// rooms: paper store
// What a certificate costs from its row to its PDF, and the pages of a long run.

#include <QApplication>
#include <QTemporaryDir>
#include <string>

#include "benches/Bench.h"
#include "paper/Report.h"
#include "paper/ScratchTables.h"
#include "store/Open.h"

namespace {

using namespace fidaleon;

void insertRow(store::Connection& reports, int n) {
  reports.Execute(
      "INSERT INTO Documentos_Bautismo (Libro, Folio, Numero, NombreHijo, PrimerApellidoHijo, "
      "SegundoApellidoHijo, FechaBautismoLarga, ParroquiaBaut, PoblacionBaut, ProvinciaBaut, "
      "Ministro, [Al niño/A la niña], [Nacido/Nacida], FechaNacLarga, NombrePadre, "
      "PrimerApellidoPadre, NombreMadre, PrimerApellidoMadre, AbueloPaterno, AbuelaPaterna, "
      "AbueloMaterno, AbuelaMaterna, Padrino, Madrina, InstitucionNombre, InstitucionTipo, "
      "InstitucionDiocesis, InstitucionPoblacion, InstitucionEncargado, NotasMarginales, "
      "FechaSistemaLarga, Sexo) VALUES (\"Libro XXIII\", \"" +
      std::to_string(n) +
      "\", \"12\", \"María del Carmen\", \"Fernández de Córdoba\", \"Muñoz\", "
      "\"12 de octubre de 1987\", \"Nuestra Señora de la Asunción\", \"Alcalá de Henares\", "
      "\"Madrid\", \"José Gutiérrez\", \"a la niña\", \"nacida\", \"3 de septiembre de 1987\", "
      "\"Francisco Javier\", \"Fernández\", \"Ana María\", \"Muñoz\", \"Antonio Fernández\", "
      "\"Dolores Serrano\", \"Manuel Muñoz\", \"Pilar Gómez\", \"Luis Alfonso Muñoz\", "
      "\"Mercedes Fernández\", \"Nuestra Señora de la Asunción\", \"Parroquia de\", "
      "\"Madrid-Alcalá\", \"Alcalá de Henares\", \"Juan Espínola\", \"Confirmada en 2001.\", "
      "\"22 de noviembre de 2026\", \"Dª.\")");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const auto reports = store::memoryDatabase(store::reportsSchema());
  const QTemporaryDir folder;
  const std::string file = folder.filePath(QStringLiteral("a.pdf")).toStdString();
  const auto makePdf = [&](const char* name) {
    const paper::Report report(*reports, "templates", name, QStringLiteral("Bautismo"));
    report.savePdf(file);
  };
  const double one = bench::milliseconds(30, [&] {
    paper::emptyScratchTables(*reports);
    insertRow(*reports, 1);
    makePdf("certificado_bautismo");
  });
  bench::line("certificado: fila y PDF", bench::shown(one, " ms"), "25 ms",
              bench::shown(one / 25, ""), "1", one <= 25);

  constexpr int kPages = 300;
  paper::emptyScratchTables(*reports);
  for (int i = 1; i <= kPages; ++i) insertRow(*reports, i);
  const double many = bench::milliseconds(3, [&] { makePdf("partida_bautismo"); });
  const double perSecond = kPages * 1e3 / many;
  bench::line("partidas: páginas por segundo", bench::shown(perSecond, ""), "400",
              bench::shown(perSecond / 400, ""), "1", perSecond >= 400);
  return 0;
}
