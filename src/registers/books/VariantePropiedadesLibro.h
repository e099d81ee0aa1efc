#pragma once

#include <utility>

#include "core/dialogs/Guard.h"
#include "core/lists/cIListas.h"
#include "registers/books/frmPropiedadesLibro.h"

namespace fidaleon {

struct VariantePropiedadesLibro {
  const char* pestana;
  void (cIListas::*configurar)(forms::Grid&);
  const char* ruta;  // of the grid's widths
};

inline constexpr std::int64_t NOMBRE_ABIERTO = 4;  // of Libros_TipoNombre: typed freely

}  // namespace fidaleon
