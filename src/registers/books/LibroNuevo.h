#pragma once

#include <cstdint>
#include <string>

#include "core/contract/FDAPI.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// A book as it comes into being: open, empty, its counters at the first position.
struct LibroNuevo {
  std::int64_t institucion = 0;
  std::int64_t formato = 3;     // of Libros_Formato
  std::int64_t tipoNombre = 4;  // of Libros_TipoNombre
  std::string nombre;
  std::string fechaCreacion;  // "yyyymmdd"
  bool nuevo = true;
  std::int32_t clave = 0;  // 0: the store gives one
};

/// Throws store::Error.
void insertarLibro(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                   const LibroNuevo& libro);
/// The key of the book inserted last.
std::int32_t ultimoLibro(FDAPI::Conexion& conexion, const Sacramento& sacramento);

}  // namespace fidaleon
