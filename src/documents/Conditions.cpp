#include "documents/Conditions.h"

#include "core/statements/Citas.h"

namespace fidaleon::documents {

std::string inYear(const char* fecha, std::int32_t ano) {
  const std::string year = std::to_string(ano);
  return fecha + (" >=" + entreComillas(year + "0101")) + " AND " + fecha +
         " <=" + entreComillas(year + "1231");
}

std::string ofBooks(const char* libros, std::int32_t idInstitucion) {
  const std::string id = std::to_string(idInstitucion);
  return std::string(" AND ") + libros + ".CodInstitucion = " + id + " AND IDInstitucion = " + id;
}

}  // namespace fidaleon::documents
