#include "registers/lookup/OrigenBusqueda.h"

namespace fidaleon {

namespace {

constexpr OrigenBusqueda ORIGENES[] = {
    {FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO, "Búsqueda de padres por ", cIListas::RUTA_BUSCA_PADRES,
     true, [](cIListas& listas, forms::Grid& grid) { listas.ConfigGridBuscaPadres(grid); },
     [](frmBuscaPadres& f) { f.CargarGridBautismo(); }, "CargarGridBautismo",
     [](frmBuscaPadres& f, std::int32_t id) { f.ImportarDatosBautismo(id); },
     "ImportarDatosBautismo"},
};

}  // namespace

const OrigenBusqueda* origenBusqueda(FDAPI::cCOrigen origen) {
  for (const OrigenBusqueda& o : ORIGENES)
    if (o.origen == origen) return &o;
  return nullptr;
}

}  // namespace fidaleon
