#pragma once

#include "import/ResultadoImportacion.h"
#include "parish/Desk.h"
#include "parish/legacy/ImportOrder.h"

namespace fidaleon::app {

/// Carries out an order on an open parish while nobody else has it open, and lets nobody in
/// meanwhile; behind a copy that one can return to, unless it is a trial. Messages go to the user
/// of the desk. Throws WrongOrder when the order does not fit the parish or somebody else is there,
/// store::Error when there can be no copy, locks::Unusable; nothing was imported then.
ResultadoImportacion runImport(Desk& desk, const ImportOrder& order, FDAPI::cProgreso& progress,
                               const FDAPI::ColEtiqueta& labels = {});

/// Where the report of an import at this moment is saved.
std::filesystem::path reportFile(const ImportOrder& order, const std::string& today,
                                 const std::string& now);

}  // namespace fidaleon::app
