#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// Deletes a request of baptism with all its rows, without asking and without touching any book.
/// Takes and gives back its own locks; refused, it does nothing. Errors are reported.
void eliminarSolicitudBautismo(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                               std::int32_t lngID);

}  // namespace fidaleon
