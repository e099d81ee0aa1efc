#pragma once

#include <cstdint>

#include "catalogue/NodeView.h"
#include "catalogue/Workplace.h"

namespace fidaleon::app {

/// The dialog of an institution, a province, a municipality or a task, with its locks; `id` 0 is a
/// new one. Refusals have been told to the user.
void openCatalogueRow(Workplace& workplace, NodeKind kind, std::int32_t id);
/// Asks, and refuses a row that anything or anybody uses.
void deleteCatalogueRow(Workplace& workplace, NodeKind kind, std::int32_t id);

}  // namespace fidaleon::app
