#pragma once

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// Deletes the five rows of an entry, whoever else uses those of the parents. `bautismo` stands on
/// its row of Bautismo.
void borrarFilasBautismo(FDAPI::Conexion& conBaseDatos, const store::Recordset& bautismo);

}  // namespace fidaleon
