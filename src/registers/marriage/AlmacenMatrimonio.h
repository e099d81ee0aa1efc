#pragma once

#include "registers/common/Almacen.h"
#include "registers/marriage/cMatrimonio.h"

namespace fidaleon {

extern const DescripcionAlmacen<cMatrimonio> ALMACEN_MATRIMONIO;
extern template class Almacen<cMatrimonio>;

}  // namespace fidaleon
