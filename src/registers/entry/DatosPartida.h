#pragma once

#include <cstdint>
#include <string>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// What all entries have, in whatever form the record of a sacrament keeps it. To and from a record
/// by its datosDe() and ponerDatos(), which leave Estado and Operacion alone.
struct DatosPartida {
  std::int32_t id = 0;
  std::int32_t libro = 0;
  /// Of a request; 0 for an entry of a book.
  std::int32_t institucion = 0;
  std::string folio;  // digits
  std::string numero;
  bool anulada = false;
};

}  // namespace fidaleon
