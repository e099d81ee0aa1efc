#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/ListReports.h"
#include "catalogue/Workplace.h"
#include "core/facade/Documentos.h"
#include "paper/Report.h"

namespace fidaleon::app {

class Desk;

/// What follows "Partida de bautismo - " in the title of a report over these rows, and in the name
/// of its file: "Juan García Pérez" of an entry, the name of a book, the year of a duplicate.
/// Empty when nothing of it is known.
std::string subjectOf(store::Connection& reports, const Documento& document);

/// Asks for keeper and date where the document is signed, runs its operation and lays out what that
/// wrote. A duplicate's operation asks for year and order by itself, and `id` is not read. Nothing
/// when no row was written: whoever refused has told the user, and the user knows that he
/// cancelled. Annulled entries carry a mark, and a book the names of its institution, beside what
/// `options` asks for. Throws paper::Error and store::Error.
std::optional<paper::Report> makeReport(Desk& desk, const Documento& document, std::int32_t id,
                                        paper::ReportOptions options = {});

/// Runs the operation and lays out what it wrote. Nothing when the user
/// gave up, or when there is nothing to print, which the user has then been told. Throws as
/// makeReport does.
std::optional<paper::Report> makeListReport(Desk& desk, const ListReport& report, Extent extent,
                                            paper::ReportOptions options = {});

}  // namespace fidaleon::app
