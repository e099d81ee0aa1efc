#pragma once
// The tables of the main database, by family. Each function appends its own.

#include <vector>

#include "store/schema/Schema.h"

namespace fidaleon::store {

void addCatalogues(std::vector<Table>& tables);
void addBooks(std::vector<Table>& tables);
void addBaptism(std::vector<Table>& tables);
void addConfirmation(std::vector<Table>& tables);
void addMarriage(std::vector<Table>& tables);
void addDeath(std::vector<Table>& tables);
void addCensus(std::vector<Table>& tables);

}  // namespace fidaleon::store
