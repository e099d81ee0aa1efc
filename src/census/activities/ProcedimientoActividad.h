#pragma once

#include <utility>

#include "census/activities/frmActividad.h"
#include "core/contract/Guard.h"

namespace fidaleon {

template <class Body>
bool frmActividad::procedimiento(const char* nombre, Body&& body) {
  return guarded(contexto_, "frmActividad", nombre, std::forward<Body>(body));
}

}  // namespace fidaleon
