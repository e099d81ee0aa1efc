#include "registers/books/frmPropiedadesLibro.h"
#include "registers/death/AlmacenDefuncion.h"
#include "registers/death/frmPartidaDefuncion.h"

namespace fidaleon {

frmPropiedadesLibroDefuncion::frmPropiedadesLibroDefuncion(Contexto& contexto)
    : frmPropiedadesLibro(
          contexto, DEFUNCION,
          std::make_unique<PartidasDe<cDefuncion, frmPartidaDefuncion>>(
              contexto, ALMACEN_DEFUNCION, FDAPI::cCOrigen::LISTAPARTIDASDEFUNCION)) {}

}  // namespace fidaleon
