#include "catalogue/Documents.h"

#include <memory>
#include <stdexcept>

#include "catalogue/Annulled.h"
#include "catalogue/BookHeader.h"
#include "catalogue/ReportProgress.h"
#include "catalogue/Templates.h"
#include "core/contract/CcNodos.h"
#include "core/contract/Sacramento.h"
#include "paper/DocumentCatalogue.h"
#include "paper/ScratchTables.h"
#include "parish/Desk.h"
#include "text/Dates.h"

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
constexpr NodeKind BOOK = NodeKind::Books;
constexpr const char* MENORCA = Editions::APP_FIDALEON_MENORCA;
constexpr const char* SANTIAGO = Editions::APP_FIDALEON_SANTIAGO;

const paper::Document& paperOf(const std::string& operation) {
  const paper::Document* paper = paper::documentOf(operation);
  if (!paper) throw std::logic_error("Documento sin plantilla: " + operation);
  return *paper;
}

// What a run that failed left half done must not be printed, nor hold back the runs after it.
void takeBackUnfinished(FDAPI::Conexion& reports) {
  if (reports.inTransaction()) reports.RollbackTrans();
}

void startAfresh(FDAPI::Conexion& reports) {
  takeBackUnfinished(reports);
  paper::emptyScratchTables(reports);
}

void markAnnulled(paper::ReportOptions& options, Annulled annulled) {
  if (annulled.places() == 0) return;
  const auto shared = std::make_shared<const Annulled>(std::move(annulled));
  options.mark = [shared](const paper::Row& row) { return shared->mark(row); };
}

// A dialog that was left without a choice still gives a document, which must not be signed unread.
QString withoutKeeper(const std::string& date) {
  return QStringLiteral(
             "Este documento no dice quién lo firma, porque no se ha elegido ningún encargado del "
             "archivo. Lleva la fecha %1.")
      .arg(QString::fromStdString(text::toShort(text::parseStored(date).value_or(text::Date{}))));
}

// Nothing when there are no rows.
std::optional<paper::Report> layOut(Desk& desk, const paper::Document& paper,
                                    paper::ReportOptions options) {
  if (keptAsSample(desk.parish())) options.stamp = QStringLiteral("MUESTRA");
  paper::Report report(desk.reports(), templateDirectory(), paper.templateName, paper.title,
                       std::move(options));
  if (report.rowCount() == 0) return {};
  return report;
}

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
      {"libro", "", "InformeLibroBautismo", BOOK, runPlain<&cNucleo::InformeLibroBautismo>},
      {"libro", MENORCA, "InformeLibroBautismoMenorca", BOOK,
       runPlain<&cNucleo::InformeLibroBautismoMenorca>},
      {"indice", "", "InformeIndiceLibroBautismo", BOOK,
       runPlain<&cNucleo::InformeIndiceLibroBautismo>},
      {"indice", MENORCA, "InformeIndiceLibroBautismoMenorca", BOOK,
       runPlain<&cNucleo::InformeIndiceLibroBautismoMenorca>},
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

std::optional<paper::Report> makeReport(Desk& desk, const Document& document, std::int32_t id,
                                        paper::ReportOptions options) {
  const paper::Document& paper = paperOf(document.operation);
  DocumentRun run{desk.nucleo(), desk.parish(), desk.reports(), id, {}, {}};
  if (paper.signedByKeeper) {
    run.nucleo.SelecEncargado(run.parish, BAUTISMO.palabra, id, run.date, run.keeper);
    if (run.keeper.empty()) options.notices << withoutKeeper(run.date);
  }
  startAfresh(run.reports);
  document.run(run);
  takeBackUnfinished(run.reports);
  const bool catalan = document.edition == MENORCA;
  const QString word = annulledMark(catalan);
  if (document.kind == BOOK) {
    markAnnulled(options, Annulled(run.parish, id, word));
    options.values = bookHeader(run.parish, id, catalan);
  } else if (isAnnulled(run.parish, id)) {
    options.mark = [word](const paper::Row&) { return word; };
  }
  return layOut(desk, paper, std::move(options));
}

std::optional<paper::Report> makeDuplicate(Desk& desk, const std::string& node,
                                           paper::ReportOptions options) {
  const paper::Document& paper = paperOf("ImprimirDuplicadasBautismo");
  startAfresh(desk.reports());
  desk.nucleo().ImprimirDuplicadas(desk.parish(), desk.reports(), node, options.order);
  takeBackUnfinished(desk.reports());
  if (options.order.empty()) return {};
  markAnnulled(options, Annulled(desk.parish()));
  return layOut(desk, paper, std::move(options));
}

const std::vector<ListReport>& listReports() {
  const auto node = [](const char* title) { return CcNodos::INFORMES + std::string(title); };
  static const std::vector<ListReport> all{
      {node(CcNodos::INFACTIVIDADES), CcNodos::ACTIVIDAD, "InformeActividad",
       &cNucleo::SelInfActividad, &cNucleo::InformeActividad},
      {node(CcNodos::INFCOLABORADORES), CcNodos::COLABORADOR, "InformeColaborador",
       &cNucleo::SelInfColaborador, &cNucleo::InformeColaborador},
      {node(CcNodos::INFCOLABORADORESEXTENDIDO), "", "InformeColaboradorExt",
       &cNucleo::SelInfColaboradorExt, &cNucleo::InformeColaboradorExt},
      {node(CcNodos::INFAGENDA), "Tareas", "InformeAgenda", &cNucleo::SelInfTareasAgenda,
       &cNucleo::InformeAgenda},
  };
  return all;
}

const ListReport* findListReport(const std::string& node) {
  for (const ListReport& r : listReports())
    if (r.node == node || r.list == node) return &r;
  return nullptr;
}

std::optional<paper::Report> makeListReport(Desk& desk, const ListReport& report, Extent extent,
                                            paper::ReportOptions options) {
  const paper::Document& paper = paperOf(report.operation);
  startAfresh(desk.reports());
  bool told = true;
  if (extent == Extent::Chosen) {
    (desk.nucleo().*report.chosen)(desk.parish(), desk.reports());
  } else {
    ReportProgress progress(desk.entorno().ui);
    (desk.nucleo().*report.entire)(desk.parish(), desk.reports(), progress);
    told = progress.began();
  }
  takeBackUnfinished(desk.reports());
  std::optional<paper::Report> made = layOut(desk, paper, std::move(options));
  if (!made && !told) forms::warn(desk.entorno().ui, "¡No se ha encontrado ningún registro!");
  return made;
}

}  // namespace fidaleon::app
