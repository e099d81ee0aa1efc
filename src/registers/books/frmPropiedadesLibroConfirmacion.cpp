#include "registers/books/frmPropiedadesLibro.h"
#include "registers/confirmation/AlmacenConfirmacion.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"

namespace fidaleon {

frmPropiedadesLibroConfirmacion::frmPropiedadesLibroConfirmacion(Contexto& contexto)
    : frmPropiedadesLibro(
          contexto, CONFIRMACION,
          std::make_unique<PartidasDe<cConfirmacion, frmPartidaConfirmacion>>(
              contexto, ALMACEN_CONFIRMACION, FDAPI::cCOrigen::LISTAPARTIDASCONFIRMACION)) {}

}  // namespace fidaleon
