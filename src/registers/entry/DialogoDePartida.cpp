#include "registers/entry/DialogoDePartida.h"

#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"
#include "registers/death/frmPartidaDefuncion.h"
#include "registers/marriage/frmPartidaMatrimonio.h"

namespace fidaleon {

namespace {

template <class Dialogo>
std::unique_ptr<frmPartida> crear(Contexto& contexto) {
  return std::make_unique<Dialogo>(contexto);
}

}  // namespace

CrearPartida dialogoDePartida(const Sacramento* sacramento) {
  if (sacramento == &BAUTISMO) return crear<frmPartidaBautismo>;
  if (sacramento == &CONFIRMACION) return crear<frmPartidaConfirmacion>;
  if (sacramento == &MATRIMONIO) return crear<frmPartidaMatrimonio>;
  if (sacramento == &DEFUNCION) return crear<frmPartidaDefuncion>;
  return nullptr;
}

}  // namespace fidaleon
