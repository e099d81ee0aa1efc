#pragma once

#include <string>

#include "export/ListTable.h"

namespace fidaleon::app {

/// The list as an OpenDocument spreadsheet of one sheet: the titles bold and repeated on each
/// printed page, dates, times and numbers as what they are, columns as wide as shown. What XML
/// cannot hold is left out of texts. Throws std::runtime_error.
std::string odsDocument(const ListTable& table);

/// The part of it that holds the sheet.
std::string odsContent(const ListTable& table);

}  // namespace fidaleon::app
