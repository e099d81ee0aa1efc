#include "census/activities/cPadronActGrupos.h"

#include <algorithm>

namespace fidaleon {

std::int32_t claveTemporal(const ColeccionGrupos& grupos) {
  std::int32_t mayor = 0;
  for (const cPadronActGrupos& grupo : grupos) mayor = std::max(mayor, grupo.IDGrupo);
  return mayor + 1;
}

cPadronActGrupos* buscarGrupo(ColeccionGrupos& grupos, std::int32_t IDGrupo) {
  const auto grupo = std::find_if(grupos.begin(), grupos.end(),
                                  [&](const cPadronActGrupos& g) { return g.IDGrupo == IDGrupo; });
  return grupo == grupos.end() ? nullptr : &*grupo;
}

}  // namespace fidaleon
