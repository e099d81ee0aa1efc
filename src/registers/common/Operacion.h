#pragma once

#include <string>
#include <type_traits>

#include "core/contract/FDAPI.h"
#include "text/Numbers.h"

namespace fidaleon {

// Some records hold their pending operation as a code, others as the code in text. Whoever treats
// them alike goes through these.

/// Value-initialised when nothing is to be done.
template <class Registro>
FDAPI::cCOperacion operacionDe(const Registro& r) {
  if constexpr (std::is_same_v<decltype(r.Operacion), std::string>)
    return static_cast<FDAPI::cCOperacion>(text::toInteger(r.Operacion).value_or(0));
  else
    return r.Operacion;
}

template <class Registro>
void ponerOperacion(Registro& r, FDAPI::cCOperacion operacion) {
  if constexpr (std::is_same_v<decltype(r.Operacion), std::string>)
    r.Operacion = operacion == FDAPI::cCOperacion{} ? "" : std::to_string(int(operacion));
  else
    r.Operacion = operacion;
}

}  // namespace fidaleon
