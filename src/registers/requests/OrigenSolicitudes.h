#pragma once

#include "core/contract/FDAPI.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// How the requests of one sacrament are moved into a book.
struct OrigenSolicitudes {
  FDAPI::cCOrigen origen;
  const Sacramento& sacramento;
  const char* titulo;
  FDAPI::cCOrigen detalle;    // how the details are shown
  const char* nombreCalculo;  // of the procedure, for error reports
  /// More columns of the statement that lists them, and what stands between the persons.
  const char* columnas = "";
  const char* entrePersonas = " y ";
};

/// Null for an origin or a sacrament that has no requests.
const OrigenSolicitudes* origenSolicitudes(FDAPI::cCOrigen origen);
const OrigenSolicitudes* origenSolicitudes(const Sacramento* sacramento);

}  // namespace fidaleon
