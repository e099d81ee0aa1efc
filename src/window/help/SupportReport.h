#pragma once

#include <string>

#include "parish/Desk.h"

namespace fidaleon::app {

/// What somebody who helps from afar asks for, as a text: versions, system, sizes and numbers of
/// rows, settings that are numbers or words of the program, and the last errors without their
/// texts. No name of a person, of the parish, of an account, a machine or a folder is in it.
/// Counts the rows of all tables. Throws store::Error.
std::string supportReport(Desk& desk);

}  // namespace fidaleon::app
