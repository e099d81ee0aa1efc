#pragma once

#include "core/statements/Columnas.h"
#include "registers/confirmation/cConfirmacion.h"

namespace fidaleon {

// The three tables of a confirmation, columns in the order of their statements.
extern const Tabla<cConfirmacion> TABLA_CONFIRMACION;
extern const Tabla<cConfirmacion> TABLA_CONFIRMACION_DATOS;
extern const Tabla<cConfirmacion> TABLA_CONFIRMACION_BAUTISMO;

}  // namespace fidaleon
