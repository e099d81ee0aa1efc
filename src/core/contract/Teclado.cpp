#include "core/contract/Teclado.h"

namespace fidaleon {

namespace {

constexpr const char* APLICACION = "Fidaleon";
constexpr const char* SECCION = "Principal";
constexpr const char* CLAVE = "Intro";
constexpr const char* ACEPTA = "acepta";
constexpr const char* PASA = "pasa";

}  // namespace

bool introPasaDeCampo(const Settings& ajustes) {
  return ajustes.read(APLICACION, SECCION, CLAVE, PASA) != ACEPTA;
}

void ponerIntroPasaDeCampo(Settings& ajustes, bool pasa) {
  ajustes.write(APLICACION, SECCION, CLAVE, pasa ? PASA : ACEPTA);
}

}  // namespace fidaleon
