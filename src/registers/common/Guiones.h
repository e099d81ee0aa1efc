#pragma once

#include <string>

#include "text/Utf8.h"

namespace fidaleon {

/// What the registers keep for an absent text.
inline constexpr const char* GUIONES = "---";

inline std::string oGuiones(const std::string& valor) {
  return text::trim(valor).empty() ? GUIONES : valor;
}

inline bool enBlanco(const std::string& valor) {
  return oGuiones(valor) == GUIONES;
}

/// A typed name as it is stored, and therefore as it is looked for: without blanks around it.
inline std::string nombreGuardado(const std::string& tecleado) {
  return oGuiones(text::trim(tecleado));
}

}  // namespace fidaleon
