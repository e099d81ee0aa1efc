#pragma once

#include <cstdint>

#include "app/NodeView.h"
#include "app/Workplace.h"

namespace fidaleon::app {

/// The dialog of an institution, a province or a municipality; `id` 0 is a new one.
void openCatalogueRow(Workplace& workplace, NodeKind kind, std::int32_t id);
/// Asks, and refuses a row that anything uses.
void deleteCatalogueRow(Workplace& workplace, NodeKind kind, std::int32_t id);

}  // namespace fidaleon::app
