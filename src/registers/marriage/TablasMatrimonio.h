#pragma once

#include "core/statements/Columnas.h"
#include "registers/marriage/cMatrimonio.h"

namespace fidaleon {

// The nine tables of a marriage, columns in the order of their statements.
extern const Tabla<cMatrimonio> TABLA_MATRIMONIOS;
extern const Tabla<cMatrimonio> TABLA_NOVIOS;
extern const Tabla<cMatrimonio> TABLA_NOVIOS_REGCIVIL;
extern const Tabla<cMatrimonio> TABLA_NOVIOS_BAUTISMO;
extern const Tabla<cMatrimonio> TABLA_NOVIAS;
extern const Tabla<cMatrimonio> TABLA_NOVIAS_REGCIVIL;
extern const Tabla<cMatrimonio> TABLA_NOVIAS_BAUTISMO;
extern const Tabla<cMatrimonio> TABLA_COMPROMISO;
extern const Tabla<cMatrimonio> TABLA_EXPEDIENTE;

}  // namespace fidaleon
