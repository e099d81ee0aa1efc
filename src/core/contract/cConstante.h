#pragma once

#include <cstdint>
#include <string>

namespace fidaleon {

/// The current edition, for those who ask.
struct cConstante {
  std::string Aplicacion;
  std::string INF_TipoAplicacion;
  bool ConsolidacionVisible = false;
  std::string PrimeraInstalacion;
};

/// Sex of a child: item data of the list; the register stores the words.
enum cCSexo : std::int32_t { HOMBRE = 0, MUJER = 1 };

/// Edition names, as people read them.
struct cCAplicacion {
  static constexpr const char* APP_FIDALEON_MADRID = "Fidaleon Madrid";
  static constexpr const char* APP_FIDALEON_SANTIAGO = "Fidaleon Santiago";
  static constexpr const char* APP_FIDALEON_GENERAL = "Fidaleon General";
  static constexpr const char* APP_FIDALEON_GETAFE = "Fidaleon Getafe";
  static constexpr const char* APP_FIDALEON_ALICANTE = "Fidaleon Alicante";
};

}  // namespace fidaleon
