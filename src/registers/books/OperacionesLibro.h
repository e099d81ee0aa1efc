#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Closes an open new book after asking; nothing can be entered in it afterwards. Takes and gives
/// back its own locks, tells the user of refusals and reports errors.
void cerrarLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                 const Sacramento& sacramento);

/// Deletes a book that has no entries, after asking; otherwise as above.
void eliminarLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                   const Sacramento& sacramento);

}  // namespace fidaleon
