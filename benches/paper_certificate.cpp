// rooms: paper documents store
// What a certificate costs from its row to its PDF, and the pages of a long run.

#include <QApplication>
#include <QTemporaryDir>
#include <string>

#include "benches/Bench.h"
#include "documents/Miembros.h"
#include "paper/Report.h"
#include "paper/ScratchTables.h"
#include "store/Open.h"

namespace {

using namespace fidaleon;

/// A row with every column that the member fills.
void insertRow(store::Connection& reports, const documents::DocumentKind& kind, int n) {
  std::string columns, values;
  for (const documents::Column& column : kind.columns) {
    const std::string name = column.name;
    columns += (columns.empty() ? "" : ",") + name;
    const char* text = name.ends_with("Corta")     ? "12/10/1987"
                       : name.ends_with("Larga")   ? "12 de octubre de 1987"
                       : name == "NotasMarginales" ? "Confirmada en 2001."
                                                   : "Fernández de Córdoba";
    values += (values.empty() ? "\"" : ",\"") + (name == "Folio" ? std::to_string(n) : text) + "\"";
  }
  reports.Execute("INSERT INTO " + std::string(kind.table) + " (" + columns + ") VALUES (" +
                  values + ")");
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
  struct Measured {
    const char* register_;
    const char* member;
    const char* certificate;
    const char* memberOfEntry;
    const char* entry;
  };
  for (const Measured& m :
       {Measured{"bautismo", "ImprimirCertificadoPartidaBautismo", "certificado_bautismo",
                 "ImprimirPartidaBautismo", "partida_bautismo"},
        {"confirmación", "ImprimirCertificadoPartidaConfirmacion", "certificado_confirmacion",
         "ImprimirPartidaConfirmacion", "partida_confirmacion"},
        {"defunción", "ImprimirCertificadoPartidaDefuncion", "certificado_defuncion",
         "ImprimirPartidaDefuncion", "partida_defuncion"}}) {
    const std::string of = std::string(" de ") + m.register_;
    const double one = bench::milliseconds(30, [&] {
      paper::emptyScratchTables(*reports);
      insertRow(*reports, documents::miembro(m.member).kind, 1);
      makePdf(m.certificate);
    });
    bench::line("certificado" + of + ": fila y PDF", bench::shown(one, " ms"), "8 ms",
                bench::shown(one / 8, ""), "1", one <= 8);

    constexpr int kPages = 300;
    paper::emptyScratchTables(*reports);
    for (int i = 1; i <= kPages; ++i)
      insertRow(*reports, documents::miembro(m.memberOfEntry).kind, i);
    const double many = bench::milliseconds(3, [&] { makePdf(m.entry); });
    const double perSecond = kPages * 1e3 / many;
    bench::line("partidas" + of + ": páginas por segundo", bench::shown(perSecond, ""), "400",
                bench::shown(perSecond / 400, ""), "1", perSecond >= 400);
  }
  return 0;
}
