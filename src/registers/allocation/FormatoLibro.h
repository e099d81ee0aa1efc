#pragma once

#include <cstdint>

#include "store/Connection.h"

namespace fidaleon {

/// Entries per folio that a book's format gives: `Partidas_Folio` of its row, 0 when there is no
/// such row. Only 1, 2 and 4 are handled by the routines of this folder.
int partidasPorFolio(store::Connection& conexion, std::int64_t codFormato);
/// The same by the identity of the format alone, as the store side goes by it; 0 for others.
int partidasDeFormato(std::int64_t codFormato);

}  // namespace fidaleon
