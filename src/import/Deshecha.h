#pragma once

#include "core/contract/FDAPI.h"
#include "store/Engine.h"

namespace fidaleon {

/// After some errors the store takes back by itself all that a transaction had written; what comes
/// then would not be part of it.
inline bool deshecha(FDAPI::Conexion& conexion) {
  return conexion.inTransaction() && !conexion.engine().inTransaction();
}

}  // namespace fidaleon
