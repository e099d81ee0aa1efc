#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "census/activities/cPadronActividad.h"

namespace fidaleon {

/// A group of an activity with its members, as the dialogs hold it until they are accepted. A group
/// that is not stored yet has a key of the dialog's own, see claveTemporal().
struct cPadronActGrupos {
  std::int32_t IDGrupo = 0;
  std::int32_t IDActividad = 0;
  FDAPI::cCOperacion Operacion{};  // none: as it stands in the database
  bool Estado = false;             // stands in the database
  std::string Comentarios;
  std::string Sala;
  std::string Hora;
  std::string Dia;
  std::string Año;
  std::string Nombre;
  /// Stored members that are to go stay in it, marked Borrar.
  std::vector<cPadronActividad> miembros;
};

/// The groups of one activity.
using ColeccionGrupos = std::vector<cPadronActGrupos>;

/// Key of the next new group: the highest plus 1, or 1 for the first.
std::int32_t claveTemporal(const ColeccionGrupos& grupos);
/// Null when there is none of that key.
cPadronActGrupos* buscarGrupo(ColeccionGrupos& grupos, std::int32_t IDGrupo);

}  // namespace fidaleon
