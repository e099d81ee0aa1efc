#include "registers/lookup/OrigenBusqueda.h"

namespace fidaleon {

namespace {

using FDAPI::cCOrigen;

constexpr const char* DE_PERSONA = "Búsqueda por ";

// The grid of the dead is filled as that of marriages.
constexpr OrigenBusqueda ORIGENES[] = {
    {cCOrigen::LISTAPARTIDASBAUTISMO, true, "Búsqueda de padres por ",
     &cIListas::ConfigGridBuscaPadres, cIListas::RUTA_BUSCA_PADRES, "CargarGridBautismo",
     "ImportarDatosBautismo"},
    {cCOrigen::LISTAPARTIDASCONFIRMACION, false, DE_PERSONA,
     &cIListas::ConfigGridBuscaPadresConfirmacion, cIListas::RUTA_BUSCA_CONFIRMACION,
     "CargarGridConfirmacion", "ImportarDatosConfirmacion"},
    {cCOrigen::LISTAPARTIDASMatrimonio, false, DE_PERSONA,
     &cIListas::ConfigGridBuscaPadresMatrimonio, cIListas::RUTA_BUSCA_MATRIMONIO,
     "CargarGridMatrimonio", "ImportarDatosMatrimonioNovio", "ImportarDatosMatrimonioNovia"},
    {cCOrigen::LISTAPARTIDASDEFUNCION, false, DE_PERSONA, &cIListas::ConfigGridBuscaPadresDefuncion,
     cIListas::RUTA_BUSCA_DEFUNCION, "CargarGridMatrimonio", "ImportarDatosDefuncion"},
};

}  // namespace

const OrigenBusqueda* origenBusqueda(cCOrigen origen) {
  for (const OrigenBusqueda& o : ORIGENES)
    if (o.origen == origen) return &o;
  return nullptr;
}

}  // namespace fidaleon
