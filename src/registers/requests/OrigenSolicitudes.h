#pragma once

#include <string>

#include "core/contract/FDAPI.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// How the requests of one sacrament are moved into a book.
struct OrigenSolicitudes {
  FDAPI::cCOrigen origen;
  const Sacramento& sacramento;
  const char* titulo;
  /// Finds a row as long as there is any request.
  const char* sqlAlguna;
  /// The requests of an institution, whose key follows.
  const char* sqlSolicitudes;
  /// What a row of these is listed under.
  std::string (*nombre)(FDAPI::Conexion&, const store::Recordset& solicitud);
  FDAPI::cCOrigen detalle;    // how the details are shown
  const char* nombreCalculo;  // of the procedure, for error reports
};

/// Null for an origin or a sacrament whose requests cannot be moved.
const OrigenSolicitudes* origenSolicitudes(FDAPI::cCOrigen origen);
const OrigenSolicitudes* origenSolicitudes(const Sacramento* sacramento);

}  // namespace fidaleon
