#pragma once
// Rows as each member of the document room fills them.

#include <string>
#include <utility>
#include <vector>

#include "core/facade/Documentos.h"
#include "store/Connection.h"
#include "store/Open.h"

namespace fidaleon::paper::test {

using Values = std::vector<std::pair<std::string, std::string>>;

/// The columns that the operation of a document fills.
std::vector<std::string> columnsOf(const std::string& operation);

/// A believable row: long compound names, every column of the operation filled.
Values fullRow(const std::string& operation);
/// The same columns with "---" in each, as an entry with nothing known gives them.
Values blankRow(const std::string& operation);
/// Replaces or adds values.
Values with(Values row, const Values& changes);

/// Into the table of that document.
void insert(store::Connection& reports, const std::string& operation, const Values& row);
void insert(store::Connection& reports, const Values& row,
            const std::string& table = "Documentos_Bautismo");

}  // namespace fidaleon::paper::test
