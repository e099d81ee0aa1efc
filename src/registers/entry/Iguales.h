#pragma once

#include <algorithm>
#include <span>
#include <string>

#include "core/statements/Columnas.h"

namespace fidaleon {

/// "Nombre = "Ana" AND Edad = 7": the rows that hold what the record does in these columns.
template <class Registro>
std::string condicionIguales(std::span<const Columna<Registro>> columnas, const Registro& r) {
  std::string condicion;
  for (const Columna<Registro>& c : columnas)
    condicion +=
        (condicion.empty() ? "" : " AND ") + std::string(c.nombre) + " = " + valorSQL(r, c);
  return condicion;
}

/// The same of two records: without regard to case, as the store compares.
template <class Registro>
bool iguales(std::span<const Columna<Registro>> columnas, const Registro& a, const Registro& b) {
  return std::ranges::all_of(columnas, [&](const Columna<Registro>& c) {
    return text::equalsNoCase(valorSQL(a, c), valorSQL(b, c));
  });
}

}  // namespace fidaleon
