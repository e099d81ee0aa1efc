#include "registers/entry/DialogoDePartida.h"

#include "registers/baptism/frmPartidaBautismo.h"

namespace fidaleon {

namespace {

template <class Dialogo>
std::unique_ptr<frmPartida> crear(Contexto& contexto) {
  return std::make_unique<Dialogo>(contexto);
}

}  // namespace

CrearPartida dialogoDePartida(const Sacramento* sacramento) {
  if (sacramento == &BAUTISMO) return crear<frmPartidaBautismo>;
  return nullptr;
}

}  // namespace fidaleon
