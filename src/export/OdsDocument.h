#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "export/ListTable.h"

namespace fidaleon::app {

/// The list as an OpenDocument spreadsheet of one sheet: the titles bold and repeated on each
/// printed page, dates, times and numbers as what they are, columns as wide as shown. What XML
/// cannot hold is left out of texts. Throws what writeZip throws.
void writeOds(const ListTable& table, const std::filesystem::path& file);

/// The part of it that holds the sheet, part by part. The table must stay.
std::function<void(std::string& part)> odsContent(const ListTable& table);

}  // namespace fidaleon::app
