#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// The six lines of frmDetallePadres for one origin: under which labels, and how they are made of
/// the entry or request with that key. Throws when that is gone.
struct FormaDetalle {
  static constexpr int LINEAS = 6;
  using Etiquetas = std::array<const char*, LINEAS>;
  using Lineas = std::array<std::string, LINEAS>;

  FDAPI::cCOrigen origen;
  const char* titulo;
  const Etiquetas& etiquetas;
  Lineas (*lineas)(Contexto&, FDAPI::Conexion&, std::int32_t id);
  const char* procedimiento;  // for error reports
};

/// Null for an origin without details.
const FormaDetalle* formaDetalle(FDAPI::cCOrigen origen);

}  // namespace fidaleon
