#pragma once

#include <cstdint>
#include <functional>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Deletes an entry after asking, together with its parents' rows even where another entry uses
/// them, and sets the counters of its book back. Takes and gives back its own locks. Errors are
/// reported.
void borrarPartidaBautismo(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID);

/// Whether an entry may go: of an old book any, of an open new one the last alone, of a closed one
/// none. Tests the lock only; `borrar` takes its own and asks.
void eliminarPartida(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento, const std::function<void()>& borrar);

}  // namespace fidaleon
