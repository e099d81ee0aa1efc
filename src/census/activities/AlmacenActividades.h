#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "census/activities/cPadronActGrupos.h"

namespace fidaleon {

struct Actividad {
  std::int32_t IDActividad = 0;
  std::string Nombre;
  std::string Descripcion;
  std::int32_t CodInstitucion = 0;
};

// Activities in the database. Both writers do all of it or, with an error, nothing; the collection
// stays as it was, so that the same can be tried again.

/// None when it is gone.
std::optional<Actividad> leerActividad(FDAPI::Conexion& conexion, std::int32_t IDActividad);
/// Its groups with their members, all with Estado.
ColeccionGrupos leerGrupos(FDAPI::Conexion& conexion, std::int32_t IDActividad);
/// A new activity with its groups; their keys and its own are given by the database.
void agregarActividad(FDAPI::Conexion& conexion, const Actividad& actividad,
                      const ColeccionGrupos& grupos);
/// Writes the activity and what its groups are marked for. Of a group that was edited, members
/// that another workstation has added or taken away meanwhile stay as that one left them. An
/// activity, an edited group or the office of a new member that is gone is an error; a new member
/// who is gone is left out.
void editarActividad(FDAPI::Conexion& conexion, const Actividad& actividad,
                     const ColeccionGrupos& grupos);

}  // namespace fidaleon
