#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/NodeView.h"
#include "catalogue/Workplace.h"
#include "core/facade/cNucleo.h"
#include "paper/Report.h"

namespace fidaleon::app {

class Desk;

/// What an operation that writes a document works on.
struct DocumentRun {
  cNucleo& nucleo;
  FDAPI::Conexion& parish;
  FDAPI::Conexion& reports;
  std::int32_t id;
  std::string keeper;
  std::string date;  // "yyyymmdd"
};

/// One document in one edition: which operation writes its row. Template, title and whether it is
/// signed are in the catalogue of templates, under the name of the operation.
struct Document {
  std::string command;    // the command that asks for it
  std::string edition;    // code; empty for all editions without a line of their own
  std::string operation;  // of the library
  NodeKind kind = NodeKind::Entries;
  void (*run)(DocumentRun&) = nullptr;
};

const std::vector<Document>& documents();
/// The edition's own document of a command, or the common one; null when there is none.
const Document* findDocument(const std::string& command, const std::string& edition);

/// Empties the scratch tables, asks for keeper and date where the document is signed, runs the
/// operation and lays out what it wrote. Nothing when it wrote no row: whoever refused has told
/// the user. Annulled entries carry a mark, and a book the names of its institution, beside what
/// `options` asks for. Throws paper::Error and store::Error.
std::optional<paper::Report> makeReport(Desk& desk, const Document& document, std::int32_t id,
                                        paper::ReportOptions options = {});
/// The same for the year's duplicate of the baptism books, in the order that the user has chosen in
/// its dialog. Nothing when the user cancelled or the year has no entries.
std::optional<paper::Report> makeDuplicate(Desk& desk, const std::string& node,
                                           paper::ReportOptions options = {});

/// A report on the people or tasks of the parish. It stands under a node of its own, and can be
/// asked for from the list whose rows it prints.
struct ListReport {
  std::string node;
  std::string list;       // empty when another report is the one of that list
  std::string operation;  // name in the catalogue of templates
  void (cNucleo::*chosen)(FDAPI::Conexion& parish, FDAPI::Conexion& reports) = nullptr;
  void (cNucleo::*entire)(FDAPI::Conexion& parish, FDAPI::Conexion& reports,
                          FDAPI::cProgreso& progress) = nullptr;
};

const std::vector<ListReport>& listReports();
/// By the node of the report or that of the list; null when there is none.
const ListReport* findListReport(const std::string& node);

/// Empties the scratch tables, runs the operation and lays out what it wrote. Nothing when the user
/// gave up, or when there is nothing to print, which the user has then been told. Throws as
/// makeReport does.
std::optional<paper::Report> makeListReport(Desk& desk, const ListReport& report, Extent extent,
                                            paper::ReportOptions options = {});

}  // namespace fidaleon::app
