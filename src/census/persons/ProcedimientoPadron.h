#pragma once
// For the source files of frmPadron only.

#include "census/persons/frmPadron.h"
#include "core/contract/Guard.h"

namespace fidaleon {

template <class Body>
bool frmPadron::procedimiento(const char* nombre, Body&& body) {
  return guarded(contexto_, "frmPadron", nombre, std::forward<Body>(body));
}

}  // namespace fidaleon
