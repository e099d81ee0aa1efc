#pragma once

#include "forms/Form.h"

namespace fidaleon {

/// Fields and lists can be read but not changed, and every button but `cancelar` is off. For a
/// record that another workstation is at.
void ponerSoloLectura(forms::Form& formulario, const forms::Button& cancelar);

}  // namespace fidaleon
