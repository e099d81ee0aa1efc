#pragma once

#include "core/contract/FDAPI.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Deletes all rows of an entry or request, whoever else uses them. `partida` stands on its row of
/// the entry table.
void borrarFilas(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                 const store::Recordset& partida);

}  // namespace fidaleon
