#pragma once
// Which rows each member of cInformes writes: a table of columns and the statement that reads what
// stands in them.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "documents/DocumentRow.h"

namespace fidaleon::documents {

/// One document of an entry, or of a book with all its entries, by the key of that.
struct Miembro {
  DocumentKind kind;
  std::string (*rows)(std::int32_t key);  // one record for each row
  const char* readBack = nullptr;         // run behind the row, its answer dropped
  /// Of a book: followed by its key, a statement whose first field is not 0 as long as there are
  /// entries.
  const char* check = nullptr;
};

const std::vector<Miembro>& miembros();
/// By the name of the member. Throws std::logic_error for any other.
const Miembro& miembro(std::string_view nombre);

}  // namespace fidaleon::documents
