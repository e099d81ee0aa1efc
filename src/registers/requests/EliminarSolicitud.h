#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Deletes a request with all its rows, without asking and without touching any book.
/// Takes and gives back its own locks; refused, it does nothing. Errors are reported.
void eliminarSolicitud(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                       const Sacramento& sacramento);

}  // namespace fidaleon
