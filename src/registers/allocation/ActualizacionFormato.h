#pragma once

#include <cstdint>

#include "core/contract/Sacramento.h"
#include "store/Connection.h"

namespace fidaleon {

/// Works out FolioSiguiente and NumeroSiguiente of an old book from its entries, after each one
/// stored. Sets `blnSalto` when the next position is not where the book's counters led; otherwise
/// leaves it. Throws store::Error; the counters then are as last written.
void actualizacionFormato(store::Connection& conexion, const Sacramento& sacramento,
                          std::int32_t libro, bool& blnSalto);

}  // namespace fidaleon
