#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/contract/Sacramento.h"
#include "registers/allocation/Posicion.h"
#include "store/Connection.h"

namespace fidaleon {

/// The counters of an old book, once they stand on a free position.
struct PosicionLibre {
  std::int32_t libro = 0;
  Posicion posicion;
};

/// Moves the counters of an old book on until they stand on a free position. Empty when more than
/// `limite` times 4 steps did not reach one, or the book's format cannot be stepped through.
/// Throws store::Error; the counters then are as last written.
std::optional<PosicionLibre> primeraPosicionLibre(store::Connection& conexion,
                                                  const Sacramento& sacramento,
                                                  std::int64_t institucion,
                                                  const std::string& nombreLibro,
                                                  std::optional<double> limite);

}  // namespace fidaleon
