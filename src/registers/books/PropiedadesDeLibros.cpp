// The dialog of a book for each register.

#include "registers/baptism/AlmacenBautismo.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/confirmation/AlmacenConfirmacion.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"
#include "registers/death/AlmacenDefuncion.h"
#include "registers/death/frmPartidaDefuncion.h"
#include "registers/marriage/AlmacenMatrimonio.h"
#include "registers/marriage/frmPartidaMatrimonio.h"

namespace fidaleon {

namespace {

template <class Dialogo, class Registro>
std::unique_ptr<PartidasDeLibro> partidas(Contexto& contexto,
                                          const DescripcionAlmacen<Registro>& almacen) {
  return std::make_unique<PartidasDe<Registro, Dialogo>>(contexto, almacen);
}

template <class Dialogo>
std::unique_ptr<frmPropiedadesLibro> crear(Contexto& contexto) {
  return std::make_unique<Dialogo>(contexto);
}

}  // namespace

frmPropiedadesLibroBautismo::frmPropiedadesLibroBautismo(Contexto& contexto)
    : frmPropiedadesLibro(contexto, BAUTISMO,
                          partidas<frmPartidaBautismo>(contexto, ALMACEN_BAUTISMO)) {}

frmPropiedadesLibroConfirmacion::frmPropiedadesLibroConfirmacion(Contexto& contexto)
    : frmPropiedadesLibro(contexto, CONFIRMACION,
                          partidas<frmPartidaConfirmacion>(contexto, ALMACEN_CONFIRMACION)) {}

frmPropiedadesLibroMatrimonio::frmPropiedadesLibroMatrimonio(Contexto& contexto)
    : frmPropiedadesLibro(contexto, MATRIMONIO,
                          partidas<frmPartidaMatrimonio>(contexto, ALMACEN_MATRIMONIO)) {}

frmPropiedadesLibroDefuncion::frmPropiedadesLibroDefuncion(Contexto& contexto)
    : frmPropiedadesLibro(contexto, DEFUNCION,
                          partidas<frmPartidaDefuncion>(contexto, ALMACEN_DEFUNCION)) {}

CrearPropiedadesLibro propiedadesDeLibro(const Sacramento& sacramento) {
  if (&sacramento == &BAUTISMO) return crear<frmPropiedadesLibroBautismo>;
  if (&sacramento == &CONFIRMACION) return crear<frmPropiedadesLibroConfirmacion>;
  if (&sacramento == &MATRIMONIO) return crear<frmPropiedadesLibroMatrimonio>;
  if (&sacramento == &DEFUNCION) return crear<frmPropiedadesLibroDefuncion>;
  return nullptr;
}

}  // namespace fidaleon
