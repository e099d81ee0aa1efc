#pragma once

#include "store/Connection.h"

namespace fidaleon::app {

/// The agenda of a parish for one year: what returns every week or month, and its feasts.
void fillSampleTasks(store::Connection& connection, int year);

}  // namespace fidaleon::app
