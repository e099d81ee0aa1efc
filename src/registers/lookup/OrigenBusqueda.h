#pragma once

#include "core/contract/FDAPI.h"
#include "core/lists/cIListas.h"

namespace fidaleon {

/// What the look-up does for one kind of entry dialog.
struct OrigenBusqueda {
  FDAPI::cCOrigen origen;
  /// Baptism alone: parents are shown and taken over, not the baptised person.
  bool familia;
  const char* titulo;  // the surnames follow
  void (cIListas::*configurar)(forms::Grid&);
  const char* ruta;          // where the widths of the grid are kept
  const char* nombreCargar;  // of the procedures, for error reports
  const char* nombreImportar;
  const char* nombreImportarOtra = nullptr;  // for the second person, where there are two
};

/// Null for an origin that has no look-up.
const OrigenBusqueda* origenBusqueda(FDAPI::cCOrigen origen);

}  // namespace fidaleon
