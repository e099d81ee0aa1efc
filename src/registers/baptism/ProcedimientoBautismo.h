#pragma once
// For the source files of frmPartidaBautismo only.

#include "core/contract/EnSacramento.h"
#include "core/contract/Guard.h"
#include "registers/baptism/frmPartidaBautismo.h"

namespace fidaleon {

template <class Body>
bool frmPartidaBautismo::procedimiento(const char* nombre, Body&& body) const {
  return guarded(contexto_, "frmPartidaBautismo", nombre, std::forward<Body>(body));
}

}  // namespace fidaleon
