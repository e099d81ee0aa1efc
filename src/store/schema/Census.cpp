// The census: persons with their satellites, roles, activities, groups, offices and tasks.

#include "store/schema/Parish.h"

namespace fidaleon::store {

namespace {

void addPersons(std::vector<Table>& tables) {
  tables.push_back(Table("Padron")
                       .counter("IDPadron")
                       .texts({"Nombre", "PrimerApellido", "SegundoApellido", "DNI", "Direccion"})
                       .refers("Municipio", {"CodMunicipio"})
                       .texts({"CPostal", "Telefono", "Telefono2", "CorreoElectronico",
                               "EstadoCivil", "Sexo", "Profesion/Colegio", "PosicionFamiliar"})
                       .memos({"Comentarios", "Observaciones"})
                       .refers("Institucion", {"CodInstitucionEmpadronado"})
                       .texts({"Nif_Responsable", "Cumpleaños", "AñoNacimiento"})
                       .index({"PrimerApellido", "SegundoApellido", "Nombre"})
                       .index({"DNI"})
                       .from(4)
                       .index({"EstadoCivil"})
                       .index({"PosicionFamiliar"}));
  tables.push_back(Table("Padron_NotasPersonales")
                       .counter("IDNota")
                       .belongsTo("Padron", "CodPadron")
                       .texts({"Nombre"})
                       .memos({"Descripcion"})
                       .index({"CodPadron"}));
  Table kinds("Tipo_Persona");
  kinds.counter("IDTipoPersona").texts({"Nombre"});
  kinds.row({Value(std::int64_t{2}), Value(std::string("Empadronado"))});
  kinds.row({Value(std::int64_t{3}), Value(std::string("Colaborador"))});
  tables.push_back(kinds);
  tables.push_back(Table("Padron_TipoPersona")
                       .belongsTo("Padron", "CodPadron")
                       .refers("Tipo_Persona", {"CodTipoPersona"})
                       .key({"CodPadron", "CodTipoPersona"}, false));
}

void addSacraments(std::vector<Table>& tables) {
  const auto satellite = [&](const char* name) -> Table& {
    tables.push_back(Table(name).belongsTo("Padron", "CodPadron").key({"CodPadron"}, false));
    return tables.back();
  };
  satellite("Padron_Nacimiento")
      .add(Type::Text, {"FechaNacimiento"}, 10)
      .refers("Municipio", {"CodMunicipioNac"})
      .texts({"NombrePadre", "NombreMadre"});
  satellite("Padron_Bautismo")
      .add(Type::Text, {"FechaBautizo"}, 10)
      .refers("Municipio", {"CodMunicipioParrBaut"})
      .texts({"ParroquiaBaut", "DireccionParrBaut"});
  satellite("Padron_Comunion").texts({"AñoComunion", "ParroquiaCom"});
  satellite("Padron_Confirmacion")
      .add(Type::Text, {"FechaConfirmacion"}, 10)
      .refers("Municipio", {"CodMunicipioParrConf"})
      .texts({"ParroquiaConf", "DireccionParrConf"});
  satellite("Padron_Matrimonio")
      .add(Type::Text, {"FechaMatrimonio"}, 10)
      .refers("Municipio", {"CodMunicipioParrMatr"})
      .texts({"ParroquiaMatr", "DireccionParrMatr"});
  satellite("Padron_Defuncion")
      .add(Type::Text, {"FechaDefuncion"}, 10)
      .texts({"Nicho", "ImporteEur", "Importe"})
      .yesNos({"Pagado"});
}

void addActivities(std::vector<Table>& tables) {
  tables.push_back(Table("Actividad")
                       .counter("IDActividad")
                       .texts({"Nombre"})
                       .memos({"Descripcion"})
                       .refers("Institucion", {"CodInstitucion"})
                       .index({"CodInstitucion", "Nombre"}));
  tables.push_back(Table("Grupo")
                       .counter("IDGrupo")
                       .belongsTo("Actividad", "CodActividad")
                       .texts({"Nombre", "Año", "Dia", "Hora", "Sala"})
                       .memos({"Comentarios"})
                       .index({"CodActividad"}));
  tables.push_back(
      Table("Cargo").counter("IDCargo").texts({"Nombre"}).memos({"Descripcion"}).index({"Nombre"}));
  tables.push_back(Table("Padron_Actividad")
                       .counter("IDActividadesPadron")
                       .refers("Padron", {"CodPadron"})
                       .refers("Grupo", {"CodGrupo"})
                       .refers("Cargo", {"CodCargo"})
                       .index({"CodPadron"})
                       .index({"CodGrupo"})
                       .index({"CodCargo"}));
  tables.push_back(Table("Tareas")
                       .counter("IDTarea")
                       .add(Type::Text, {"Fecha", "HoraInicio", "HoraFin"}, 10)
                       .texts({"Nombre"})
                       .memos({"Descripcion"})
                       .index({"Fecha", "HoraInicio", "Nombre"}));
}

}  // namespace

void addCensus(std::vector<Table>& tables) {
  addPersons(tables);
  addSacraments(tables);
  addActivities(tables);
}

}  // namespace fidaleon::store
