#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"

namespace fidaleon::support {

enum class Catalogo { Institucion, Provincia, Municipio, Tarea };

/// The main program's commands on its catalogues, each with its locks: adding shares the tables
/// with the other workstations, correcting takes the row, deleting wants the table to itself. True
/// when the catalogue has changed; refusals and errors have been told to the user.
class Mantenimiento {
 public:
  /// Both must outlive the object; the context holds the configuration.
  Mantenimiento(Contexto& contexto, FDAPI::Conexion& conexion);

  bool agregar(Catalogo catalogo);
  bool propiedades(Catalogo catalogo, std::int32_t id);
  bool eliminar(Catalogo catalogo, std::int32_t id);

 private:
  template <class Trabajo>
  bool trabajar(const char* procedimiento, Catalogo catalogo, const Trabajo& trabajo);

  Contexto& contexto_;
  FDAPI::Conexion& conexion_;
};

}  // namespace fidaleon::support
