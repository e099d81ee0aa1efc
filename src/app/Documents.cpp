#include "app/Documents.h"

#include <stdexcept>

#include "app/Desk.h"
#include "app/Templates.h"
#include "core/contract/Sacramento.h"
#include "paper/DocumentCatalogue.h"
#include "paper/ScratchTables.h"

namespace fidaleon::app {
namespace {

using Editions = FDAPI::cCAplicacion;
using Signed = void (cNucleo::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t,
                                 const std::string&, const std::string&);
using Plain = void (cNucleo::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t);

template <Signed OPERATION>
void runSigned(DocumentRun& r) {
  (r.nucleo.*OPERATION)(r.parish, r.reports, r.id, r.keeper, r.date);
}

template <Plain OPERATION>
void runPlain(DocumentRun& r) {
  (r.nucleo.*OPERATION)(r.parish, r.reports, r.id);
}

bool isAnnulled(FDAPI::Conexion& parish, std::int32_t id) {
  const auto rows =
      parish.Execute("SELECT Anulada FROM Bautismo WHERE IDBautismo=" + std::to_string(id));
  return !rows.EOF_() && rows.flag("Anulada");
}

constexpr NodeKind ENTRY = NodeKind::Entries;
constexpr NodeKind REQUEST = NodeKind::Requests;
constexpr const char* MENORCA = Editions::APP_FIDALEON_MENORCA;
constexpr const char* SANTIAGO = Editions::APP_FIDALEON_SANTIAGO;

}  // namespace

const std::vector<Document>& documents() {
  static const std::vector<Document> all{
      {"certificado", "", "InformeCertificadoPartidaBautismo", ENTRY,
       runSigned<&cNucleo::InformeCertificadoPartidaBautismo>},
      {"certificado", MENORCA, "InformeCertificadoPartidaBautismoMenorca", ENTRY,
       runSigned<&cNucleo::InformeCertificadoPartidaBautismoMenorca>},
      {"literal", "", "InformeCertificadoLiteralPartidaBautismo", ENTRY,
       runSigned<&cNucleo::InformeCertificadoLiteralPartidaBautismo>},
      {"literal", MENORCA, "InformeCertificadoLiteralPartidaBautismoMenorca", ENTRY,
       runSigned<&cNucleo::InformeCertificadoLiteralPartidaBautismoMenorca>},
      {"partida", "", "InformePartidaBautismo", ENTRY, runPlain<&cNucleo::InformePartidaBautismo>},
      {"partida", MENORCA, "InformePartidaBautismoMenorca", ENTRY,
       runPlain<&cNucleo::InformePartidaBautismoMenorca>},
      {"volante", "", "InformeVolanteBautismo", ENTRY, runPlain<&cNucleo::InformeVolanteBautismo>},
      {"volante", MENORCA, "InformeVolanteBautismoMenorca", ENTRY,
       runPlain<&cNucleo::InformeVolanteBautismoMenorca>},
      {"datos", "", "InformeSolicitudPartidaBautismoDatos", REQUEST,
       runPlain<&cNucleo::InformeSolicitudPartidaBautismoDatos>},
      {"datos", MENORCA, "InformeSolicitudPartidaBautismoDatosMenorca", REQUEST,
       runPlain<&cNucleo::InformeSolicitudPartidaBautismoDatosMenorca>},
      {"datos", SANTIAGO, "InformeSolicitudPartidaBautismoDatosSantiago", REQUEST,
       runPlain<&cNucleo::InformeSolicitudPartidaBautismoDatosSantiago>},
  };
  return all;
}

const Document* findDocument(const std::string& command, const std::string& edition) {
  const Document* common = nullptr;
  for (const Document& d : documents()) {
    if (d.command != command) continue;
    if (d.edition == edition) return &d;
    if (d.edition.empty()) common = &d;
  }
  return common;
}

std::optional<paper::Report> makeReport(Desk& desk, const Document& document, std::int32_t id) {
  const paper::Document* paper = paper::documentOf(document.operation);
  if (!paper) throw std::logic_error("Documento sin plantilla: " + document.operation);
  DocumentRun run{desk.nucleo(), desk.parish(), desk.reports(), id, {}, {}};
  if (paper->signedByKeeper)
    run.nucleo.SelecEncargado(run.parish, BAUTISMO.palabra, id, run.date, run.keeper);
  paper::emptyScratchTables(run.reports);
  document.run(run);
  paper::ReportOptions options;
  if (isAnnulled(run.parish, id))
    options.mark = [](const paper::Row&) { return QStringLiteral("ANULADA"); };
  paper::Report report(run.reports, templateDirectory(), paper->templateName, paper->title,
                       std::move(options));
  if (report.rowCount() == 0) return {};
  return report;
}

}  // namespace fidaleon::app
