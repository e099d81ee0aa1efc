#include "catalogue/CensusLists.h"

namespace fidaleon::app {

namespace {

const std::vector<std::string> BY_NAME{"PrimerApellido", "SegundoApellido", "Nombre"};

RowPart ofPerson(const std::string& table) {
  return {table, {"CodPadron", table, {}}};
}

void describeRole(NodeView& v, const char* satellite) {
  v.key = "IDPadron";
  v.parts = {{"Padron", {}}, ofPerson("Padron_TipoPersona"), ofPerson(satellite)};
  v.order = BY_NAME;
  v.scattered = true;
}

}  // namespace

// Whoever has the role is asked for person by person, since the persons lie in the order of the
// list: the first of them are there at once.
void describePeople(NodeView& v) {
  describeRole(v, "Padron_Nacimiento");
  v.thing = "persona";
  v.things = "personas";
  v.node.SQLSelect =
      "SELECT Padron.IDPadron, Padron.PrimerApellido, Padron.SegundoApellido, Padron.Nombre, "
      "Padron.DNI, Padron_Nacimiento.FechaNacimiento, Padron.Direccion, Municipio.Nombre AS "
      "Municipio, Padron.Telefono, Institucion.Nombre AS Institucion FROM ((Padron LEFT JOIN "
      "Padron_Nacimiento ON Padron_Nacimiento.CodPadron=Padron.IDPadron) LEFT JOIN Municipio ON "
      "Municipio.IDMunicipio=Padron.CodMunicipio) LEFT JOIN Institucion ON "
      "Institucion.IDInstitucion=Padron.CodInstitucionEmpadronado WHERE "
      "EXISTS (SELECT 1 FROM Padron_TipoPersona WHERE "
      "Padron_TipoPersona.CodPadron=Padron.IDPadron AND "
      "Padron_TipoPersona.CodTipoPersona=2) ORDER BY Padron.PrimerApellido, "
      "Padron.SegundoApellido, Padron.Nombre, Padron.IDPadron";
  v.columns = {{"PrimerApellido", "Primer apellido", ColumnKind::Text, 15, {}},
               {"SegundoApellido", "Segundo apellido", ColumnKind::Text, 15, {}},
               {"Nombre", "Nombre", ColumnKind::Text, 17, {}},
               {"DNI", "NIF", ColumnKind::Text, 11, {}},
               {"FechaNacimiento", "Nacimiento", ColumnKind::Date, 11, {}},
               {"Direccion", "Dirección", ColumnKind::Text, 24, {}},
               {"Municipio", "Población", ColumnKind::Text, 18, {}},
               {"Telefono", "Teléfono", ColumnKind::Text, 12, {}},
               {"Institucion", "Institución", ColumnKind::Text, 22, {}}};
}

void describeCollaborators(NodeView& v) {
  describeRole(v, "Padron_Actividad");
  v.thing = "colaborador";
  v.things = "colaboradores";
  v.node.SQLSelect =
      "SELECT Padron.IDPadron, Padron.PrimerApellido, Padron.SegundoApellido, Padron.Nombre, "
      "Padron.Telefono, Padron.Telefono2, Padron.CorreoElectronico, Padron.Direccion, "
      "Municipio.Nombre AS Municipio, (SELECT COUNT(*) FROM Padron_Actividad WHERE "
      "Padron_Actividad.CodPadron=Padron.IDPadron) AS Grupos FROM (Padron_TipoPersona INNER JOIN "
      "Padron ON Padron.IDPadron=Padron_TipoPersona.CodPadron) LEFT JOIN Municipio ON "
      "Municipio.IDMunicipio=Padron.CodMunicipio WHERE Padron_TipoPersona.CodTipoPersona=3 ORDER "
      "BY Padron.PrimerApellido, Padron.SegundoApellido, Padron.Nombre, Padron.IDPadron";
  v.columns = {{"PrimerApellido", "Primer apellido", ColumnKind::Text, 15, {}},
               {"SegundoApellido", "Segundo apellido", ColumnKind::Text, 15, {}},
               {"Nombre", "Nombre", ColumnKind::Text, 17, {}},
               {"Telefono", "Teléfono", ColumnKind::Text, 12, {}},
               {"Telefono2", "Otro teléfono", ColumnKind::Text, 12, {}},
               {"CorreoElectronico", "Correo electrónico", ColumnKind::Text, 26, {}},
               {"Grupos", "Grupos", ColumnKind::Number, 7, {}},
               {"Direccion", "Dirección", ColumnKind::Text, 24, {}},
               {"Municipio", "Población", ColumnKind::Text, 18, {}}};
}

void describeActivities(NodeView& v) {
  v.key = "IDActividad";
  v.parts = {{"Actividad", {}}};
  v.order = {"Institucion", "Nombre"};
  v.thing = "actividad";
  v.things = "actividades";
  v.node.SQLSelect =
      "SELECT Actividad.IDActividad, Actividad.Nombre, Institucion.Nombre AS Institucion, (SELECT "
      "COUNT(*) FROM Grupo WHERE Grupo.CodActividad=Actividad.IDActividad) AS Grupos, (SELECT "
      "COUNT(*) FROM Padron_Actividad, Grupo WHERE Padron_Actividad.CodGrupo=Grupo.IDGrupo AND "
      "Grupo.CodActividad=Actividad.IDActividad) AS Miembros, Actividad.Descripcion FROM Actividad "
      "LEFT JOIN Institucion ON Institucion.IDInstitucion=Actividad.CodInstitucion ORDER BY "
      "Institucion.Nombre, Actividad.Nombre, Actividad.IDActividad";
  v.columns = {{"Nombre", "Actividad", ColumnKind::Text, 30, {}},
               {"Institucion", "Institución", ColumnKind::Text, 28, {}},
               {"Grupos", "Grupos", ColumnKind::Number, 8, {}},
               {"Miembros", "Miembros", ColumnKind::Number, 10, {}},
               {"Descripcion", "Descripción", ColumnKind::Text, 40, {}}};
}

void describeOffices(NodeView& v) {
  v.key = "IDCargo";
  v.parts = {{"Cargo", {}}};
  v.order = {"Nombre"};
  v.thing = "cargo";
  v.things = "cargos";
  v.node.SQLSelect = "SELECT IDCargo, Nombre, Descripcion FROM Cargo ORDER BY Nombre, IDCargo";
  v.columns = {{"Nombre", "Cargo", ColumnKind::Text, 30, {}},
               {"Descripcion", "Descripción", ColumnKind::Text, 60, {}}};
}

void describeTasks(NodeView& v) {
  v.key = "IDTarea";
  v.parts = {{"Tareas", {}}};
  v.order = {"Fecha", "HoraInicio", "HoraFin", "Nombre"};
  v.thing = "tarea";
  v.things = "tareas";
  v.day = "Fecha";
  v.node.SQLSelect =
      "SELECT IDTarea, Fecha, HoraInicio, HoraFin, Nombre, Descripcion FROM Tareas ORDER BY Fecha, "
      "HoraInicio, HoraFin, Nombre, IDTarea";
  v.columns = {{"Fecha", "Fecha", ColumnKind::Date, 11, {}},
               {"HoraInicio", "Desde", ColumnKind::Time, 7, {}},
               {"HoraFin", "Hasta", ColumnKind::Time, 7, {}},
               {"Nombre", "Tarea", ColumnKind::Text, 34, {}},
               {"Descripcion", "Descripción", ColumnKind::Text, 50, {}}};
}

}  // namespace fidaleon::app
