#include "registers/baptism/AlmacenBautismo.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/frmPropiedadesLibro.h"

namespace fidaleon {

frmPropiedadesLibroBautismo::frmPropiedadesLibroBautismo(Contexto& contexto)
    : frmPropiedadesLibro(contexto, BAUTISMO,
                          std::make_unique<PartidasDe<cBautismo, frmPartidaBautismo>>(
                              contexto, ALMACEN_BAUTISMO, FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO)) {
}

}  // namespace fidaleon
