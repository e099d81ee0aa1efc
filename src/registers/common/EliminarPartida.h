#pragma once

#include <cstdint>
#include <functional>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Whether an entry may still go; tells the user why not.
using PermisoEliminar = std::function<bool()>;

/// Deletes an entry after asking, together with its parents' rows even where another entry uses
/// them, and sets the counters of its book back. Takes and gives back its own locks, and asks for
/// `permiso` under them, if there is one. Errors are reported.
void borrarPreguntando(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                       const Sacramento& sacramento, const PermisoEliminar& permiso = {});

/// The same for an entry that may go: of an old book any, of an open new one the last alone, of a
/// closed one none.
void eliminarPartida(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento);

}  // namespace fidaleon
