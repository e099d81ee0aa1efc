#pragma once
// The rows that the reports of people, groups and tasks leave. Values stand between double quotes
// as they are: one with a double quote in it breaks its statement.

#include <cstdint>
#include <string>

#include "documents/Lookups.h"
#include "store/Connection.h"

namespace fidaleon::documents {

/// The institution under which collaborators are listed.
struct InstitucionInforme {
  explicit InstitucionInforme(const store::Recordset& instituciones);
  std::int32_t id;
  std::string nombre;  // as printed
  std::string tipo;
};

enum class Pertenencia { CON_ACTIVIDAD, SIN_ACTIVIDAD };

/// The current record of sentenciaActividades.
void InsertarFilaActividad(store::Connection& conInformes, const store::Recordset& grupo);

/// The current record of sentenciaPersonas, or of sentenciaSinActividad, which has no activity
/// and no group of its own.
void InsertarFilaColaborador(store::Connection& conInformes, const store::Recordset& persona,
                             const InstitucionInforme& institucion, Pertenencia pertenencia,
                             Lookups& lookups);

/// The current record of sentenciaTareas. Day and times are cut by position out of "yyyymmdd" and
/// "hhmm".
void InsertarFilaTarea(store::Connection& conInformes, const store::Recordset& tarea);

}  // namespace fidaleon::documents
