#pragma once

#include <string>

#include "documents/DocumentRow.h"

namespace fidaleon::documents {

/// The witnesses of a wedding as they were written down; where they were not, their names one by
/// one, and where one has none, that of the same witness of the dossier. "---" when nothing is
/// known of either.
std::string testigosDeBoda(const FieldSource& matrimonio);

}  // namespace fidaleon::documents
