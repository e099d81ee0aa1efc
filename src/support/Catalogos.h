#pragma once

#include <cstdint>

#include "core/contract/Entorno.h"

namespace fidaleon::support {

/// Maintenance of the catalogues that the main program keeps. Each asks first, is refused with a
/// message while anything uses the row, and is true when the row is gone. Errors are reported
/// through vererror.
bool eliminarInstitucion(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                         FDAPI::Conexion& conexion, std::int32_t id);
bool eliminarProvincia(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                       FDAPI::Conexion& conexion, std::int32_t id);
bool eliminarMunicipio(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                       FDAPI::Conexion& conexion, std::int32_t id);
/// A task of the agenda; nothing refers to it.
bool eliminarTarea(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui, FDAPI::Conexion& conexion,
                   std::int32_t id);

}  // namespace fidaleon::support
