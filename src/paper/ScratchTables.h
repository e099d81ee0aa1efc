#pragma once

#include <string>
#include <vector>

#include "store/Connection.h"

namespace fidaleon::paper {

/// The tables of the reports database that documents are printed from.
const std::vector<std::string>& scratchTables();

/// Empties all of them, as one step: to be called before each document operation, since these
/// only add rows. Throws store::Error and then leaves all as they were.
void emptyScratchTables(store::Connection& reports);

}  // namespace fidaleon::paper
