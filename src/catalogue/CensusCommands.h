#pragma once

#include <vector>

#include "catalogue/Command.h"

namespace fidaleon::app {

/// The commands on people, collaborators, activities and offices.
void addCensusCommands(std::vector<Command>& all);
/// What prints the reports on them and on the tasks.
void addListReportCommands(std::vector<Command>& all);

}  // namespace fidaleon::app
