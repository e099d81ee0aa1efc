#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/contract/FDAPI.h"
#include "core/lists/Vocabulario.h"

namespace fidaleon {

/// All towns with their provinces, to be found by typing.
class PoblacionesOfrecidas {
 public:
  /// "Buitrago del Lozoya (Madrid)", with the key of the town: first those of the province that is
  /// chosen (0: none), then those used most. Reads the towns where they are not known. Throws
  /// store::Error.
  std::vector<forms::Offer> proponer(FDAPI::Conexion& conexion, const Vocabulario& usados,
                                     const std::string& tecleado, std::int64_t provincia);
  /// They are read anew when they are next needed.
  void olvidar() { lugares_.clear(); }

 private:
  struct Lugar {
    std::int64_t id;
    std::int64_t provincia;
    std::string texto;
    std::string clave;
  };
  void leer(FDAPI::Conexion& conexion);

  std::vector<Lugar> lugares_;
};

}  // namespace fidaleon
