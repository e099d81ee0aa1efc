#pragma once

#include <string>
#include <vector>

#include "paper/Expansion.h"

namespace fidaleon::paper {

/// Puts the rows in the order that a string such as "+{@FechaBautismo},+{@Folio},+{@Numero}" asks
/// for: "+" ascending or "-" descending, and a formula of the template. Equal rows keep the order
/// they have. An empty string changes nothing. Throws Error(BadOrder).
void sortRows(Rows& rows, const ReportTemplate& t, const Binding& binding,
              const std::string& order);

}  // namespace fidaleon::paper
