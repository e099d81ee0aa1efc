#include "printing/DocumentReport.h"

#include <memory>
#include <utility>

#include "core/contract/CcNodos.h"
#include "paper/ScratchTables.h"
#include "parish/Desk.h"
#include "printing/Annulled.h"
#include "printing/BookHeader.h"
#include "printing/ReportProgress.h"
#include "printing/Templates.h"
#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

using Editions = FDAPI::cCAplicacion;

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
  options.columns << shared->columns();
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
std::optional<paper::Report> layOut(Desk& desk, const std::string& templateName,
                                    const std::string& title, paper::ReportOptions options) {
  options.author = QString::fromStdString(desk.parishName());
  if (keptAsSample(desk.parish())) options.stamp = QStringLiteral("MUESTRA");
  paper::Report report(desk.reports(), templateDirectory(), templateName,
                       QString::fromStdString(title), std::move(options));
  if (report.rowCount() == 0) return {};
  return report;
}

struct Run {
  Desk& desk;
  const Documento& document;
  std::int32_t id;
  paper::ReportOptions& options;
};

/// Runs the operation of the document over the empty tables.
struct Writer {
  Run& r;

  template <class... Arguments, class... Given>
  void run(const PasoDocumento<Arguments...>& step, Given&&... given) const {
    startAfresh(r.desk.reports());
    (r.desk.nucleo().*step.operacion)(r.desk.parish(), r.desk.reports(), r.id,
                                      std::forward<Given>(given)...);
  }

  void operator()(const PasoSimple& step) const { run(step); }
  void operator()(const PasoConConfig& step) const { run(step, r.desk.config()); }
  void operator()(const PasoFirmado& step) const {
    std::string keeper, date;
    r.desk.nucleo().SelecEncargado(r.desk.parish(), r.document.sacramento->palabra, r.id, date,
                                   keeper);
    if (keeper.empty()) r.options.notices << withoutKeeper(date);
    run(step, keeper, date);
  }
  void operator()(const PasoConVias& step) const {
    bool inParish = false, toCuria = false, toCuriaBefore = false;
    run(step, inParish, toCuria, toCuriaBefore);
    for (const auto& [chosen, option] :
         {std::pair{inParish, "tramita"}, {toCuria, "curia"}, {toCuriaBefore, "curia-antes"}})
      if (chosen) r.options.choices << QString::fromLatin1(option);
  }
  /// The class has an operation of its own.
  void operator()(std::monostate) const {
    startAfresh(r.desk.reports());
    if (r.document.clase == ClaseDocumento::Duplicada)
      r.desk.nucleo().ImprimirDuplicadas(
          r.desk.parish(), r.desk.reports(),
          CcNodos::PARTIDAS + std::string(r.document.sacramento->palabra), r.options.order);
    else if (r.document.clase == ClaseDocumento::SinLibro)
      r.desk.nucleo().ImprimirPartidaSinLibro(r.desk.parish(), r.desk.reports(), r.desk.config());
  }
};

/// A request names its own institution, and its paper bears another's head all the same.
void sayWhoseHead(Run& r) {
  if (!r.document.primeraInstitucion) return;
  const auto row =
      r.desk.reports().Execute("SELECT InstitucionTipo, InstitucionNombre FROM " +
                               std::string(filasDocumento(*r.document.sacramento)->tabla));
  if (row.EOF_())
    return forms::warn(r.desk.entorno().ui,
                       "Esta solicitud no se puede imprimir mientras no haya una institución y un "
                       "libro de ese sacramento.");
  if (r.desk.parish().Execute("SELECT IDInstitucion FROM Institucion").RecordCount() > 1)
    r.options.notices << QStringLiteral(
                             "El membrete es el de «%1». Compruebe que es la que recibe "
                             "la solicitud.")
                             .arg(QString::fromStdString(row.text("InstitucionTipo") + " " +
                                                         row.text("InstitucionNombre")));
}

/// What the rows do not say: which of them are annulled, and whose book it is.
void addOfTheParish(Run& r) {
  const bool catalan = r.document.edicion == std::string_view(Editions::APP_FIDALEON_MENORCA);
  const QString word = annulledMark(catalan);
  const Sacramento& sacrament = *r.document.sacramento;
  FDAPI::Conexion& parish = r.desk.parish();
  switch (r.document.clase) {
    case ClaseDocumento::Libro:
      markAnnulled(r.options, Annulled(parish, sacrament, r.id, word));
      r.options.values = bookHeader(parish, sacrament, r.id, catalan);
      break;
    case ClaseDocumento::Duplicada:
      markAnnulled(r.options, Annulled(parish, sacrament, 0, word));
      break;
    case ClaseDocumento::Partida:
      if (isAnnulled(parish, sacrament, r.id))
        r.options.mark = [word](const paper::Row&) { return word; };
      break;
    case ClaseDocumento::Solicitud:
    case ClaseDocumento::SinLibro:
      break;
  }
}

std::string known(const store::Recordset& row, const char* column) {
  const std::string text = text::trim(row.text(column));
  return text == "---" ? "" : text;
}

/// "Juan García Pérez"
std::string personOf(const store::Recordset& row, const PersonaDocumento& columns) {
  const std::string surnames =
      text::trim(known(row, columns.primerApellido) + " " + known(row, columns.segundoApellido));
  const std::string name = known(row, columns.nombre);
  return text::trim(name + " " + surnames);
}

}  // namespace

std::string subjectOf(store::Connection& reports, const Documento& document) {
  const FilasDocumento* columns = filasDocumento(*document.sacramento);
  const auto rowOf = [&](const char* table) {
    return reports.Execute(std::string("SELECT * FROM ") + table);
  };
  const auto row = rowOf(columns->tabla);
  if (row.EOF_()) return {};
  if (document.clase == ClaseDocumento::Libro) return known(row, "Libro");
  if (document.clase == ClaseDocumento::Duplicada) return known(row, "Año");
  // Of one of several notices a title must not tell the name.
  if (document.clase == ClaseDocumento::SinLibro && row.RecordCount() > 1) return {};
  const std::string person = personOf(rowOf(columns->persona.tabla), columns->persona);
  if (!columns->conyuge) return person;
  const std::string spouse = personOf(rowOf(columns->conyuge->tabla), *columns->conyuge);
  return person.empty() || spouse.empty() ? person + spouse : person + " y " + spouse;
}

std::optional<paper::Report> makeReport(Desk& desk, const Documento& document, std::int32_t id,
                                        paper::ReportOptions options) {
  Run run{desk, document, id, options};
  std::visit(Writer{run}, document.paso);
  takeBackUnfinished(desk.reports());
  sayWhoseHead(run);
  addOfTheParish(run);
  const std::string subject = subjectOf(desk.reports(), document);
  const std::string title = document.titulo + (subject.empty() ? "" : " - " + subject);
  return layOut(desk, document.plantilla, title, std::move(options));
}

std::optional<paper::Report> makeListReport(Desk& desk, const ListReport& report, Extent extent,
                                            paper::ReportOptions options) {
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
  std::optional<paper::Report> made =
      layOut(desk, report.templateName, report.title, std::move(options));
  if (!made && !told) forms::warn(desk.entorno().ui, "¡No se ha encontrado ningún registro!");
  return made;
}

}  // namespace fidaleon::app
