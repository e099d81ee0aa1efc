#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace fidaleon {

/// A full name told apart. What is missing is empty.
struct NombreCompleto {
  std::string nombre, apellido1, apellido2;
  /// Some word of the text has found no place in it.
  bool incompleto = false;
};

/// "García López, Juan" by its comma; without one the given name stands first (`orden` 0) or last,
/// and how many words there are decides. Words that begin with a digit or a sign are dropped.
NombreCompleto separarNombre(std::string_view texto, std::uint8_t orden);

}  // namespace fidaleon
