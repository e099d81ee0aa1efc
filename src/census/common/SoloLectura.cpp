#include "census/common/SoloLectura.h"

namespace fidaleon {

void ponerSoloLectura(forms::Form& formulario, const forms::Button& cancelar) {
  for (forms::Control* control : formulario.controls()) {
    if (auto* boton = dynamic_cast<forms::Button*>(control))
      boton->setEnabled(boton == &cancelar);
    else if (auto* campo = dynamic_cast<forms::TextBox*>(control))
      campo->setLocked(true);
    else if (auto* lista = dynamic_cast<forms::ListControl*>(control))
      lista->setLocked(true);
  }
}

}  // namespace fidaleon
