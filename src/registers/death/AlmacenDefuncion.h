#pragma once

#include "registers/common/Almacen.h"
#include "registers/death/cDefuncion.h"

namespace fidaleon {

extern const DescripcionAlmacen<cDefuncion> ALMACEN_DEFUNCION;
extern template class Almacen<cDefuncion>;

}  // namespace fidaleon
