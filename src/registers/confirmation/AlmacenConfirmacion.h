#pragma once

#include "registers/common/Almacen.h"
#include "registers/confirmation/cConfirmacion.h"

namespace fidaleon {

extern const DescripcionAlmacen<cConfirmacion> ALMACEN_CONFIRMACION;
extern template class Almacen<cConfirmacion>;

}  // namespace fidaleon
