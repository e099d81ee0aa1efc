#include "registers/requests/OrigenSolicitudes.h"

namespace fidaleon {

namespace {

using FDAPI::cCOrigen;

const OrigenSolicitudes ORIGENES[] = {
    {cCOrigen::LISTAPARTIDASBAUTISMO, BAUTISMO, "Solicitudes de bautismo",
     cCOrigen::SOLICITUDBAUTISMO, "CalcularFolioyNumeroBautismo"},
    {cCOrigen::LISTAPARTIDASCONFIRMACION, CONFIRMACION, "Solicitudes de confirmación",
     cCOrigen::SOLICITUDCONFIRMACION, "CalcularFolioyNumeroConfirmacion"},
    {cCOrigen::LISTAPARTIDASMatrimonio, MATRIMONIO, "Solicitudes de matrimonio",
     cCOrigen::SOLICITUDMATRIMONIO, "CalcularFolioyNumeroMatrimonio", ", CodNovios, CodNovias",
     " Y "},
};

}  // namespace

const OrigenSolicitudes* origenSolicitudes(cCOrigen origen) {
  for (const OrigenSolicitudes& o : ORIGENES)
    if (o.origen == origen) return &o;
  return nullptr;
}

const OrigenSolicitudes* origenSolicitudes(const Sacramento* sacramento) {
  for (const OrigenSolicitudes& o : ORIGENES)
    if (&o.sacramento == sacramento) return &o;
  return nullptr;
}

}  // namespace fidaleon
