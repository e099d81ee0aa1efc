#pragma once

#include <cstddef>

#include "core/statements/Columnas.h"
#include "registers/baptism/cBautismo.h"

namespace fidaleon {

// The five tables of a baptism, columns in the order of their statements. Those of the parents and
// of their marriage begin with what brothers and sisters have alike.
inline constexpr std::size_t COLUMNAS_COMUNES_DE_PADRES = 8;
inline constexpr std::size_t COLUMNAS_COMUNES_DE_MATRIMONIO = 5;
extern const Tabla<cBautismo> TABLA_PADRES;
extern const Tabla<cBautismo> TABLA_MADRES;
extern const Tabla<cBautismo> TABLA_MATRIMONIO;
/// The columns of the marriage in the order of its UPDATE.
extern const Tabla<cBautismo> TABLA_MATRIMONIO_AL_ACTUALIZAR;
extern const Tabla<cBautismo> TABLA_BAUTISMO;
/// The columns of the entry in the order of its UPDATE.
extern const Tabla<cBautismo> TABLA_BAUTISMO_AL_ACTUALIZAR;
extern const Tabla<cBautismo> TABLA_HIJO;

}  // namespace fidaleon
