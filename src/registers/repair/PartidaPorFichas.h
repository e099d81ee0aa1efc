#pragma once

#include <cstdint>
#include <span>

#include "core/contract/FDAPI.h"
#include "core/contract/Sacramento.h"
#include "registers/cBaseDatos.h"

namespace fidaleon {

/// A table in which an entry must have a row to be shown anywhere.
struct FichaDePartida {
  const char* nombre;  // as people call it
  const char* tabla;
  const char* clave;  // by which the row is found
  const char*
      enlace;  // the entry's column that holds that key; its own key when the row is its own
};

/// What makes an entry of a sacrament whole.
struct PartidaPorFichas {
  const Sacramento& sacramento;
  const char* registro;
  const char* fecha;  // column of the entry
  std::span<const FichaDePartida> fichas;
  /// Deletes the entry with those of its rows that no other uses.
  bool (cBaseDatos::*borrar)(FDAPI::Conexion&, std::int32_t);
};

std::span<const PartidaPorFichas> partidasPorFichas();

}  // namespace fidaleon
