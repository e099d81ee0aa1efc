#pragma once

#include <ostream>

#include "dbase/Table.h"

namespace fidaleon::dbase {

/// The rest of the table as CSV in UTF-8: names of the columns first, commas, lines that end in LF;
/// quotes where a value has a comma, a quote or an end of line. Dates are "yyyy-mm-dd", moments
/// "yyyy-mm-dd hh:mm:ss", logicals "T" and "F", numbers with a point; what is missing is empty.
void writeCsv(Table& table, std::ostream& out);

}  // namespace fidaleon::dbase
