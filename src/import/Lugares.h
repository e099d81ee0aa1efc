#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// Finds or makes towns by their name and that of their province.
class Lugares {
 public:
  /// With `ensayo` nothing is made, and what would be has the key 0.
  Lugares(Contexto& contexto, FDAPI::Conexion& conexion, bool ensayo)
      : contexto_(contexto), conexion_(conexion), ensayo_(ensayo) {}

  /// The key of Municipio; 0 when either name is empty, or the town could not be made: the user has
  /// been told then.
  std::int64_t municipio(const std::string& poblacion, const std::string& provincia);
  /// Keys found before may be gone when what was written was taken back.
  void olvidar() { claves_.clear(); }

 private:
  struct Sentencias {
    std::string buscar, clave, insertar, ultima;
  };
  std::int64_t buscarOCrear(const Sentencias& sentencias);
  std::int64_t provincia(const std::string& nombre);

  Contexto& contexto_;
  FDAPI::Conexion& conexion_;
  bool ensayo_;
  std::unordered_map<std::string, std::int64_t> claves_;
};

}  // namespace fidaleon
