#pragma once

#include "parish/Desk.h"

namespace fidaleon::app {

/// Tells the user that the note of the edition was lost, or asks which edition the parish is of
/// when parish and note do not agree or do not know. False when the user would rather not say.
bool settleEdition(Desk& desk);

}  // namespace fidaleon::app
