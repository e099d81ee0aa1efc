#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "import/Avisos.h"

namespace fidaleon {

/// Finds or makes towns by their name and that of their province.
class Lugares {
 public:
  /// With `ensayo` nothing is made, and what would be has the key 0.
  Lugares(Avisos& avisos, FDAPI::Conexion& conexion, bool ensayo)
      : avisos_(avisos), conexion_(conexion), ensayo_(ensayo) {}

  /// The key of Municipio; 0 when either name is empty. Empty when the town could not be made: the
  /// user has been told then.
  std::optional<std::int64_t> municipio(const std::string& poblacion, const std::string& provincia);

 private:
  struct Sentencias {
    std::string buscar, clave, insertar, ultima;
  };
  std::optional<std::int64_t> buscarOCrear(const Sentencias& sentencias);
  std::optional<std::int64_t> provincia(const std::string& nombre);

  Avisos& avisos_;
  FDAPI::Conexion& conexion_;
  bool ensayo_;
  std::unordered_map<std::string, std::int64_t> claves_;
};

}  // namespace fidaleon
