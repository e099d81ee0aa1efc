#pragma once

#include <cstdint>
#include <functional>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Whether an entry may still go; tells the user why not.
using PermisoEliminar = std::function<bool()>;

/// Deletes an entry after asking, with all its rows, even those of a baptism's parents that another
/// entry uses, and sets the counters of its book back. Takes and gives back its own locks, and asks
/// for `permiso` under them, if there is one. Errors are reported.
void borrarPartida(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                   const Sacramento& sacramento, const PermisoEliminar& permiso = {});

/// The same if the entry may go: of an old book any, of an open new one the last alone, of a closed
/// one none. Asked before the question and again under the locks.
void eliminarPartida(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento);

}  // namespace fidaleon
