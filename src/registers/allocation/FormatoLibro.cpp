#include "registers/allocation/FormatoLibro.h"

#include <string>

namespace fidaleon {

int partidasPorFolio(store::Connection& conexion, std::int64_t codFormato) {
  const store::Recordset formato = conexion.Execute(
      "SELECT partidas_folio FROM libros_formato WHERE idformato=" + std::to_string(codFormato));
  return formato.EOF_() ? 0 : static_cast<int>(formato.integer("partidas_folio"));
}

int partidasDeFormato(std::int64_t codFormato) {
  switch (codFormato) {
    case 1:
      return 4;
    case 2:
    case 4:
      return 2;
    case 3:
      return 1;
    default:
      return 0;
  }
}

}  // namespace fidaleon
