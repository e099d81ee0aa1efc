#pragma once

#include <string>
#include <vector>

#include "core/contract/FDAPI.h"
#include "registers/confirmation/cConfirmacion.h"

namespace fidaleon::documents {

/// A row of Documentos_Confirmacion for a notice that stands in no book, within a transaction of
/// its own. Dates come in the system's long form ("lunes, 15 de marzo de 2004"), texts as they were
/// typed; the age is what stands in FechaNac. `hoy` is "yyyymmdd".
void escribirNotificacion(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conInformes,
                          const cConfirmacion& notificacion, const std::string& hoy);

/// The columns that it fills, in the order of the statement.
std::vector<std::string> columnasNotificacion();

}  // namespace fidaleon::documents
