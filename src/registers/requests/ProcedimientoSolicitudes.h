#pragma once

#include <utility>

#include "core/contract/EnSacramento.h"
#include "core/contract/Guard.h"
#include "registers/requests/frmSolicitudes.h"

namespace fidaleon {

template <class Body>
bool frmSolicitudes::procedimiento(const char* nombre, Body&& body) {
  return guarded(contexto_, "frmSolicitudes", nombre, std::forward<Body>(body));
}

}  // namespace fidaleon
