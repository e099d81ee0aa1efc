#pragma once

#include "export/ListTable.h"

namespace fidaleon::app {

/// The list as Spanish spreadsheets take it: UTF-8 with its mark, semicolons, lines that end in
/// CR LF, dates "dd/mm/yyyy", the titles in the first line. A text that a spreadsheet would run as
/// a formula gets an apostrophe in front.
void writeCsv(const ListTable& table, const Sink& sink);

}  // namespace fidaleon::app
