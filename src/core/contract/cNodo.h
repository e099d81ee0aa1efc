#pragma once

#include <cstdint>
#include <string>

namespace fidaleon {

/// One node of the main program's tree.
struct cNodo {
  bool Expandido = false;
  std::string Descripcion;
  std::string SQLSelect;  // fills the node's list
  std::string Path;
  std::string Imagen;
  std::int16_t CodImagen = 0;
  std::int32_t CodPadre = 0;
  std::int16_t Nivel = 0;
  std::string Nombre;
  std::int32_t IDNodo = 0;
  bool Visible = false;
  std::string PadreDeNivel2;
};

}  // namespace fidaleon
