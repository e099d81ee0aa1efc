// rooms: paper store
// A book of 10,000 entries of each register, and its index, to PDF, with what an entry says filled.

#include <QApplication>
#include <QTemporaryDir>
#include <ctime>
#include <filesystem>
#include <string>
#include <utility>
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

/// A register with what its entries say beside names and place.
struct Register {
  const char* name;
  const char* table;
  const char* person[3];  // columns of name and surnames
  const char* book;       // templates
  const char* index;
  std::vector<std::pair<const char*, const char*>> facts;
  const char* words[2] = {"", ""};  // of a spouse in a table beside: ends its name, and its columns
};

const std::vector<Register>& registers() {
  static const std::vector<Register> all{
      {"bautismo",
       "Documentos_Bautismo",
       {"NombreHijo", "PrimerApellidoHijo", "SegundoApellidoHijo"},
       "libro_bautismo",
       "indice_libro_bautismo",
       {{"FechaBautismoCorta", "12/10/1987"},
        {"FechaBautismoLarga", "12 de octubre de 1987"},
        {"ParroquiaBaut", "Nuestra Señora de la Asunción"},
        {"PoblacionBaut", "Alcalá de Henares"},
        {"ProvinciaBaut", "Madrid"},
        {"Diocesis", "Madrid-Alcalá"},
        {"Ministro", "José Ignacio Gutiérrez"},
        {"[Al niño/A la niña]", "a la niña"},
        {"[Nacido/Nacida]", "nacida"},
        {"FechaNacLarga", "3 de septiembre de 1987"},
        {"HoraNac", "14:35"},
        {"DireccionNac", "Hospital Príncipe de Asturias"},
        {"PoblacionNac", "Alcalá de Henares"},
        {"ProvinciaNac", "Madrid"},
        {"NombrePadre", "Francisco Javier"},
        {"PrimerApellidoPadre", "Fernández de Córdoba"},
        {"SegundoApellidoPadre", "Domínguez"},
        {"PoblacionPadre", "Priego"},
        {"ProvinciaPadre", "Córdoba"},
        {"NombreMadre", "Ana María"},
        {"PrimerApellidoMadre", "Herrera"},
        {"SegundoApellidoMadre", "Núñez"},
        {"PoblacionMadre", "Sigüenza"},
        {"ProvinciaMadre", "Guadalajara"},
        {"DireccionPadres", "calle Mayor, 24"},
        {"PoblacionPadres", "Alcalá de Henares"},
        {"ProvinciaPadres", "Madrid"},
        {"ParroquiaMatr", "Santa María la Mayor"},
        {"PoblacionMatr", "Alcalá de Henares"},
        {"ProvinciaMatr", "Madrid"},
        {"FechaMatrLarga", "8 de junio de 1985"},
        {"AbueloPaterno", "Antonio Lara Ruiz"},
        {"PoblacionAbueloPaterno", "Priego"},
        {"AbuelaPaterna", "Dolores Muñoz Sanz"},
        {"PoblacionAbuelaPaterna", "Cabra"},
        {"AbueloMaterno", "Manuel Ortega Gil"},
        {"PoblacionAbueloMaterno", "Sigüenza"},
        {"AbuelaMaterna", "Pilar Gómez Íñiguez"},
        {"PoblacionAbuelaMaterna", "Atienza"},
        {"Padrino", "Luis Alfonso Ruiz"},
        {"Madrina", "Mercedes Muñoz"},
        {"ProvinciaAbueloPaterno", "Córdoba"},
        {"ProvinciaAbuelaPaterna", "Córdoba"},
        {"ProvinciaAbueloMaterno", "Guadalajara"},
        {"ProvinciaAbuelaMaterna", "Guadalajara"}}},
      {"confirmación",
       "Documentos_Confirmacion",
       {"Nombre", "PrimerApellido", "SegundoApellido"},
       "libro_confirmacion",
       "indice_libro_confirmacion",
       {{"FechaConfirmacionCorta", "20/05/2001"},
        {"FechaConfirmacionLarga", "veinte de mayo de 2001"},
        {"Parroquia", "Nuestra Señora de la Asunción"},
        {"PoblacionParr", "Alcalá de Henares"},
        {"ProvinciaParr", "Madrid"},
        {"DiocesisParr", "Madrid-Alcalá"},
        {"Ministro", "Juan Antonio Reig"},
        {"CargoMinistro", "Obispo de Alcalá de Henares"},
        {"FechaNacLarga", "3 de septiembre de 1987"},
        {"PoblacionNac", "Alcalá de Henares"},
        {"ProvinciaNac", "Madrid"},
        {"NombrePadre", "Francisco Javier Fernández Domínguez"},
        {"NombreMadre", "Ana María Herrera Núñez"},
        {"Domicilio", "calle Mayor, 24"},
        {"PoblacionDomicilio", "Alcalá de Henares"},
        {"FeligresDe", "San Isidro"},
        {"Padrino", "Luis Alfonso Ruiz"},
        {"ParroquiaBaut", "Santa María la Mayor"},
        {"PoblacionBaut", "Alcalá de Henares"},
        {"FechaBautLarga", "doce de octubre de 1987"},
        {"LibroBaut", "XXIII"},
        {"FolioBaut", "98"},
        {"NumeroBaut", "7"}}},
      {"defunción",
       "Documentos_Defuncion",
       {"Nombre", "PrimerApellido", "SegundoApellido"},
       "libro_defuncion",
       "indice_libro_defuncion",
       {{"FechaDefuncionCorta", "15/03/2004"},
        {"FechaDefuncionLarga", "quince de marzo de 2004"},
        {"FechaInhumacionLarga", "dieciséis de marzo de 2004"},
        {"HoraDefuncion", "04:15"},
        {"Parroquia", "Nuestra Señora de la Asunción"},
        {"PoblacionParr", "Alcalá de Henares"},
        {"ProvinciaParr", "Madrid"},
        {"DiocesisParr", "Madrid-Alcalá"},
        {"InstitucionParroco", "José Ignacio Gutiérrez"},
        {"Cementerio", "Nuestra Señora de la Almudena"},
        {"EstadoCivil", "viuda"},
        {"Consorte", "Ángel Núñez Güell"},
        {"DomicilioActual", "calle de Santiago, 8"},
        {"PoblacionActual", "Alcalá de Henares"},
        {"Causa", "insuficiencia cardiaca"},
        {"PoblacionNaturalDe", "Priego"},
        {"ProvinciaNaturalDe", "Córdoba"},
        {"Edad", "91"},
        {"NumeroHijos", "2"},
        {"NombresHijos", "Luis y Pilar"},
        {"NombrePadre", "Francisco Lara"},
        {"NombreMadre", "Ana Herrera"},
        {"Sacramentos", "Penitencia y Unción de los Enfermos"},
        {"Sacerdote", "José Ignacio Gutiérrez"}}},
      {"matrimonio",
       "Documentos_Matrimonio",
       {},
       "libro_matrimonio",
       "indice_libro_matrimonio",
       {{"FechaMatrimonioCorta", "14/07/2012"},
        {"FechaMatrimonioLarga", "catorce de julio de 2012"},
        {"Parroquia", "Nuestra Señora de la Asunción"},
        {"PoblacionParroquia", "Alcalá de Henares"},
        {"ProvinciaParroquia", "Madrid"},
        {"Diocesis", "Madrid-Alcalá"},
        {"HoraMatrimonio", "12:30"},
        {"Celebrante", "José Ignacio Gutiérrez"},
        {"Testigos", "Luis Alfonso Ruiz y Mercedes Muñoz"},
        {"ExpedInst", "Nuestra Señora de la Asunción"},
        {"NihilObstat", "211/2012"}},
       {"Novio", "Novia"}},
  };
  return all;
}

/// The rows beside the principal one: both spouses, and the institution.
void insertBeside(store::Connection& reports, const Register& r, int key) {
  const std::string of = std::to_string(key);
  for (const std::string word : r.words) {
    if (word.empty()) return;
    reports.Execute(std::string("INSERT INTO ") + r.table + "_" + word +
                    "s (CodDocumentos_Matrimonio, Nombre" + word + ", PrimerApellido" + word +
                    ", SegundoApellido" + word + ", NombrePadre" + word + ", NombreMadre" + word +
                    ", FechaNac" + word + "Larga, PoblacionNac" + word + ", EstadoCivil" + word +
                    ", ParroquiaBaut" + word + ") VALUES (" + of + ", \"María del Carmen\", \"" +
                    surname(key) + "\", \"" + surname(key + 7) +
                    "\", \"Francisco Lara\", \"Ana Herrera\", \"tres de septiembre de 1987\", "
                    "\"Priego\", \"soltera\", \"Santa María la Mayor\")");
  }
  reports.Execute(std::string("INSERT INTO ") + r.table +
                  "_Otros (CodDocumentos_Matrimonio, InstitucionNombre) VALUES (" + of +
                  ", \"Nuestra Señora de la Asunción\")");
}

void insertEntries(store::Connection& reports, const Register& r) {
  std::string columns = "Año";
  std::string facts = "\"1987\"";
  if (r.person[0]) {
    columns += ", InstitucionNombre, InstitucionTipo";
    facts += ", \"Nuestra Señora de la Asunción\", \"Parroquia de\"";
  }
  for (const auto& [column, value] : r.facts) {
    columns += std::string(", ") + column;
    facts += std::string(", \"") + value + "\"";
  }
  reports.BeginTrans();
  for (int i = 0; i < kEntries; ++i) {
    const std::string first = surname(i * static_cast<int>(surnames().size()) / kEntries);
    std::string names, person;
    for (const char* column : r.person) {
      if (!column) continue;
      names += std::string(", ") + column;
      const bool surnamed = column != r.person[0];
      person += ", \"" +
                (surnamed ? (column == r.person[1] ? first : surname(i + 7))
                          : std::string("María del Carmen")) +
                "\"";
    }
    reports.Execute(std::string("INSERT INTO ") + r.table + " (Libro, Folio, Numero, Letra, " +
                    columns + names + ") VALUES (\"Libro XXIII\", \"" + std::to_string(i / 4 + 1) +
                    "\", \"" + std::to_string(i + 1) + "\", \"" +
                    first.substr(0, first[0] < 0 ? 2 : 1) + "\", " + facts + person + ")");
    insertBeside(reports, r, i + 1);
  }
  reports.CommitTrans();
}

/// Of the thread that lays out, while another one compresses: the time by the clock of a machine
/// that does nothing else.
double ownMilliseconds() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

void measure(store::Connection& reports, const Register& r, const std::string& file) {
  paper::ReportOptions options;
  options.composition = paper::ReportOptions::Composition::AsNeeded;
  options.values[QStringLiteral("Institucion")] = QStringLiteral("Parroquia de la Asunción");
  const auto report = [&](const char* name) {
    return paper::Report(reports, "templates", name, QStringLiteral("Libro"), options);
  };
  const std::string book = std::string("libro de 10.000, ") + r.name;
  const double start = ownMilliseconds();
  const paper::Report whole = report(r.book);
  whole.savePdf(file);
  const double perSecond = whole.pageCount() * 1e3 / (ownMilliseconds() - start);
  bench::line(book + ": páginas por segundo", bench::shown(perSecond, ""), "800",
              bench::shown(perSecond / 800, ""), ">= 1", perSecond >= 800);
  const auto bytes = std::filesystem::file_size(file) / static_cast<unsigned>(whole.pageCount());
  bench::line(book + ": bytes por página", std::to_string(bytes), "4096",
              bench::shown(static_cast<double>(bytes) / 4096, ""), "<= 1", bytes <= 4096);
  bench::within(
      book + ": primera página",
      bench::milliseconds(3, [&] { report(r.book).composeMore(std::chrono::milliseconds(0)); }),
      500);
  bench::within(std::string("índice de 10.000 líneas, ") + r.name + ": PDF",
                bench::milliseconds(3, [&] { report(r.index).savePdf(file); }), 1000);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const auto reports = store::memoryDatabase(store::reportsSchema());
  const QTemporaryDir folder;
  const std::string file = folder.filePath(QStringLiteral("a.pdf")).toStdString();
  for (const Register& r : registers()) {
    insertEntries(*reports, r);
    measure(*reports, r, file);
  }
  return 0;
}
