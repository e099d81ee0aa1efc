// rooms: documents registers support
// Rows of baptism documents: a certificate and an entry, from the store to the reports database.

#include "benches/Baptisms.h"
#include "benches/Bench.h"
#include "benches/Folder.h"
#include "benches/Registers.h"
#include "documents/BautismoColumns.h"
#include "documents/BautismoStatements.h"
#include "documents/Duplicada.h"
#include "documents/cInformes.h"
#include "forms/ScriptedUser.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace {

using namespace fidaleon;

constexpr int ROWS = 500;

/// A parish with one book of `entries` baptisms, and what a document needs around it.
struct Parish {
  explicit Parish(int entries) {
    con->BeginTrans();
    con->Execute(
        "INSERT INTO Institucion (Nombre, InstitucionNombre, InstitucionTipo, CodMunicipio, "
        "Diocesis) VALUES (\"San Pedro\", \"San Pedro Apóstol\", \"Parroquia de\", 1, \"Alcalá\")");
    con->Execute("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (\"Alcalá de Henares\", 28)");
    con->Execute("INSERT INTO Libro_Bautismo (CodInstitucion, Nombre) VALUES (1, \"1\")");
    for (int n = 1; n <= entries; ++n) bench::insertBaptism(*con, n, 1, n);
    con->CommitTrans();
  }

  /// Certificates of entries spread over the whole book.
  double certificates(int entries) {
    return bench::milliseconds(3, [&] {
      for (int i = 0; i < ROWS; ++i)
        informes.ImprimirCertificadoPartidaBautismo(*con, *reports, 1 + i * (entries / ROWS),
                                                    "Rosa Gil", "20261122");
    });
  }

  FDAPI::cConfig config;
  forms::ScriptedUser user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  Entorno entorno{user, host, settings, clock, {}};
  Contexto contexto{entorno};
  std::unique_ptr<store::Connection> con = store::memoryDatabase(store::parishSchema());
  std::unique_ptr<store::Connection> reports = store::memoryDatabase(store::reportsSchema());
  cInformes informes{contexto};
};

/// The same statements, those for the one place included, with the text of the row ready made.
double statementsOnly(Parish& parish) {
  const documents::DocumentKind kind{"", "Documentos_Bautismo", documents::Wording::Castellano,
                                     nullptr, documents::bautismoCertificate()};
  documents::Lookups lookups(parish.contexto, *parish.con);
  const std::string insert =
      documents::insertStatement(kind, parish.con->Execute(documents::certificateStatement(1)),
                                 {"Rosa Gil", "20261122"}, lookups);
  return bench::milliseconds(3, [&] {
    for (int i = 0; i < ROWS; ++i) {
      parish.reports->BeginTrans();
      parish.con->Execute(documents::certificateStatement(1 + i)).text("NombreLibro");
      documents::Lookups places(parish.contexto, *parish.con);
      places.town(1);
      parish.reports->Execute(insert);
      parish.reports->CommitTrans();
    }
  });
}

/// A year of 100,000 entries in books of 1,000, read as its duplicate reads them.
void years() {
  bench::Folder folder;
  const auto con = store::createDatabase(folder / "parroquia.fidaleon", store::parishSchema());
  con->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
  for (const documents::Duplicada& d : documents::duplicadas()) {
    bench::FilledRegister(*con, *formaPartida(d.sacramento), 100000, 1000);
    for (const auto& order : d.ordenes) {
      const std::string statement = d.sentencia(1961, 1) + order.sql;
      bench::within(std::string("un año de 100.000, ") + order.texto,
                    bench::milliseconds(5, [&] { con->Execute(statement).RecordCount(); }), 10);
    }
  }
}

}  // namespace

int main() {
  years();
  constexpr int LITTLE = 1000;
  constexpr int MUCH = 50000;
  Parish little(LITTLE);
  Parish much(MUCH);
  const double onLittle = little.certificates(LITTLE);
  bench::within("fila de un certificado de bautismo", onLittle / ROWS, 5);
  bench::ratio("filas de 500 certificados / sus sentencias ya escritas",
               {onLittle, statementsOnly(little)}, 2);
  bench::growth("filas de 500 certificados con 1.000 y con 50.000 partidas",
                much.certificates(MUCH), onLittle, 1.5);
  const bool complete =
      little.reports->Execute("SELECT * FROM Documentos_Bautismo").RecordCount() == 6 * ROWS;
  return complete && little.user.problems().empty() ? 0 : 1;
}
