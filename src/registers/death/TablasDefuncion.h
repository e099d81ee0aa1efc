#pragma once

#include "core/statements/Columnas.h"
#include "registers/death/cDefuncion.h"

namespace fidaleon {

// The two tables of a death, columns in the order of their statements.
extern const Tabla<cDefuncion> TABLA_DEFUNCION;
extern const Tabla<cDefuncion> TABLA_DEFUNCION_DATOS;

}  // namespace fidaleon
