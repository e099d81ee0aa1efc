#pragma once

#include <cstdint>
#include <functional>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Who was baptised and, in a second line, where the entry stands: for questions about it. A
/// request has the first alone; one that has gone has nothing.
std::string nombrePartidaBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);

/// Whether an entry may still go; tells the user why not.
using PermisoEliminar = std::function<bool()>;

/// Deletes an entry after asking, together with its parents' rows even where another entry uses
/// them, and sets the counters of its book back. Takes and gives back its own locks, and asks for
/// `permiso` under them, if there is one. Errors are reported.
void borrarPartidaBautismo(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                           const PermisoEliminar& permiso = {});

/// Whether an entry may go: of an old book any, of an open new one the last alone, of a closed one
/// none. Tests the lock only; `borrar` takes its own, asks, and tests once more.
void eliminarPartida(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento,
                     const std::function<void(const PermisoEliminar&)>& borrar);

}  // namespace fidaleon
