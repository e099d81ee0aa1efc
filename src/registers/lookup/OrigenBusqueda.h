#pragma once

#include "core/contract/FDAPI.h"
#include "core/lists/cIListas.h"
#include "registers/lookup/frmBuscaPadres.h"

namespace fidaleon {

/// What the look-up does for one kind of entry dialog.
struct OrigenBusqueda {
  FDAPI::cCOrigen origen;
  const char* titulo;  // the surnames follow
  const char* ruta;    // where the widths of the grid are kept
  bool padres;         // the grid of parents instead of that of baptised persons
  void (*configurar)(cIListas&, forms::Grid&);
  void (*cargar)(frmBuscaPadres&);
  const char* nombreCargar;  // of the procedure, for error reports
  void (*importar)(frmBuscaPadres&, std::int32_t lngIDBautismo);
  const char* nombreImportar;
};

/// Null for an origin that has no look-up.
const OrigenBusqueda* origenBusqueda(FDAPI::cCOrigen origen);

}  // namespace fidaleon
