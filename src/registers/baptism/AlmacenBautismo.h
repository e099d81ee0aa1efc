#pragma once

#include "registers/baptism/cBautismo.h"
#include "registers/common/Almacen.h"

namespace fidaleon {

extern const DescripcionAlmacen<cBautismo> ALMACEN_BAUTISMO;
extern template class Almacen<cBautismo>;

}  // namespace fidaleon
