#pragma once
// What the reports of people, groups and tasks read from the parish's database.

#include <cstdint>
#include <string>

namespace fidaleon::documents {

/// Groups with the count of their members. `restriccion` is a condition on Institucion, empty for
/// all.
std::string sentenciaActividades(const std::string& restriccion = {});

/// Institutions by type and name; 0 for all, otherwise that one.
std::string sentenciaInstituciones(std::int32_t idInstitucion = 0);

/// Members of groups, each with activity and group, without the institution: further conditions
/// go behind, and " AND CodInstitucion = " last.
std::string sentenciaPersonas();
/// The same of those groups of an activity that `restriccion` names; empty for all of them.
std::string sentenciaPersonas(std::int32_t idActividad, const std::string& restriccion);
std::string deInstitucion(const std::string& sentenciaPersonas, std::int32_t idInstitucion);

/// Collaborators that belong to no group of the institution.
std::string sentenciaSinActividad(std::int32_t idInstitucion);

/// Tasks between two days, both included, as "yyyymmdd".
std::string sentenciaTareas(const std::string& desde, const std::string& hasta);

}  // namespace fidaleon::documents
