#include "documents/CensoStatements.h"

#include "core/statements/Citas.h"

namespace fidaleon::documents {

namespace {

constexpr const char* COLUMNAS_PERSONA =
    "IDPadron, Padron.Nombre AS Nombre, PrimerApellido, SegundoApellido, Direccion, CPostal, "
    "Telefono, Telefono2, CorreoElectronico, [Profesion/Colegio] AS Profesion, "
    "Padron.Comentarios AS Comentarios, CodMunicipio, NombrePadre, NombreMadre, CodMunicipioNac, "
    "FechaNacimiento, FechaBautizo, ParroquiaBaut, DireccionParrBaut, CodMunicipioParrBaut";

}  // namespace

std::string sentenciaActividades(const std::string& restriccion) {
  std::string sql =
      "SELECT InstitucionTipo, InstitucionNombre, Actividad.Nombre AS Actividad, Grupo.Nombre AS "
      "Grupo, COUNT(Padron.Nombre) AS Colaboradores FROM Padron, Padron_Actividad, Grupo, "
      "Actividad, Institucion WHERE Padron.IDPadron = CodPadron AND Grupo.IDGrupo = codGrupo AND "
      "Actividad.IDActividad = codActividad AND Actividad.CodInstitucion = IDInstitucion";
  if (!restriccion.empty()) sql += " AND " + restriccion;
  return sql +
         " GROUP BY InstitucionTipo, InstitucionNombre, Actividad.Nombre, Grupo.Nombre ORDER BY "
         "InstitucionTipo, InstitucionNombre, Actividad.Nombre, Grupo.Nombre";
}

std::string sentenciaInstituciones(std::int32_t idInstitucion) {
  std::string sql = "SELECT IDInstitucion, InstitucionTipo, InstitucionNombre FROM Institucion";
  if (idInstitucion != 0) sql += " WHERE IDInstitucion = " + std::to_string(idInstitucion);
  return sql + " ORDER BY InstitucionTipo, InstitucionNombre";
}

std::string sentenciaPersonas() {
  return std::string("SELECT ") + COLUMNAS_PERSONA +
         ", Actividad.Nombre AS Actividad, Grupo.Nombre AS Grupo FROM Padron, Padron_Nacimiento, "
         "Padron_Bautismo, Padron_TipoPersona, Padron_Actividad, Grupo, Actividad WHERE IDPadron "
         "= Padron_Actividad.CodPadron AND CodGrupo = IDGrupo AND CodActividad = IDActividad AND "
         "IDPadron = Padron_Nacimiento.CodPadron AND IDPadron = Padron_Bautismo.CodPadron AND "
         "Padron.IDPadron = Padron_TipoPersona.CodPadron AND Padron_TipoPersona.CodTipoPersona = "
         "3 ";
}

std::string sentenciaPersonas(std::int32_t idActividad, const std::string& restriccion) {
  const std::string sql =
      sentenciaPersonas() + "AND IDActividad = " + std::to_string(idActividad) + " ";
  return restriccion.empty() ? sql : sql + "AND " + restriccion + " ";
}

std::string deInstitucion(const std::string& sentenciaPersonas, std::int32_t idInstitucion) {
  return sentenciaPersonas + "AND CodInstitucion = " + std::to_string(idInstitucion);
}

std::string sentenciaSinActividad(std::int32_t idInstitucion) {
  return std::string("SELECT ") + COLUMNAS_PERSONA +
         " FROM Padron, Padron_TipoPersona, Padron_Nacimiento, Padron_Bautismo WHERE "
         "Padron.IDPadron = Padron_Nacimiento.CodPadron AND Padron.IDPadron = "
         "Padron_TipoPersona.CodPadron AND Padron.IDPadron = Padron_Bautismo.CodPadron AND "
         "Padron_TipoPersona.CodTipoPersona = 3 AND Padron.IDPadron NOT IN (SELECT IDPadron FROM "
         "Padron, Padron_TipoPersona, Padron_Actividad, Grupo, Actividad WHERE Padron.IDPadron = "
         "Padron_TipoPersona.CodPadron AND Padron.IDPadron = Padron_Actividad.CodPadron AND "
         "Padron_Actividad.CodGrupo = Grupo.IDGrupo AND "
         "Grupo.CodActividad=Actividad.IDActividad AND Padron_TipoPersona.CodTipoPersona = 3 AND "
         "Actividad.CodInstitucion = " +
         std::to_string(idInstitucion) + ")";
}

std::string sentenciaTareas(const std::string& desde, const std::string& hasta) {
  return "SELECT * FROM Tareas WHERE Fecha>=" + entreComillas(desde) +
         " AND Fecha<=" + entreComillas(hasta) + " ORDER BY Fecha, HoraInicio, Nombre";
}

}  // namespace fidaleon::documents
