#include "store/schema/Parish.h"

#include "store/Open.h"

namespace fidaleon::store {

const Schema& parishSchema() {
  static const Schema schema("Parroquia", 6, [] {
    std::vector<Table> tables;
    addCatalogues(tables);
    addBooks(tables);
    addBaptism(tables);
    addConfirmation(tables);
    addMarriage(tables);
    addDeath(tables);
    addCensus(tables);
    for (Table& table : tables) {
      table.zeroNumbers();
      if (table.find("Anulada") != nullptr) table.from(4).indexMarked("Anulada", "CodLibro");
    }
    return tables;
  }());
  return schema;
}

}  // namespace fidaleon::store
