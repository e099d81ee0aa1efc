// The census: persons with their satellites, roles, activities, groups, offices and tasks.

#include "store/schema/Parish.h"

namespace fidaleon::store {

namespace {

void addPersons(std::vector<Table>& tables) {
  tables.push_back(Table("Padron")
                       .counter("IDPadron")
                       .texts({"Nombre", "PrimerApellido", "SegundoApellido", "DNI", "Direccion"})
                       .longs({"CodMunicipio"})
                       .texts({"CPostal", "Telefono", "Telefono2", "CorreoElectronico",
                               "EstadoCivil", "Sexo", "Profesion/Colegio", "PosicionFamiliar"})
                       .memos({"Comentarios", "Observaciones"})
                       .longs({"CodInstitucionEmpadronado"})
                       .texts({"Nif_Responsable", "Cumpleaños", "AñoNacimiento"})
                       .index({"PrimerApellido", "SegundoApellido", "Nombre"})
                       .index({"DNI"}));
  tables.push_back(Table("Padron_NotasPersonales")
                       .counter("IDNota")
                       .longs({"CodPadron"})
                       .texts({"Nombre"})
                       .memos({"Descripcion"})
                       .index({"CodPadron"}));
  Table kinds("Tipo_Persona");
  kinds.counter("IDTipoPersona").texts({"Nombre"});
  kinds.row({Value(std::int64_t{2}), Value(std::string("Empadronado"))});
  kinds.row({Value(std::int64_t{3}), Value(std::string("Colaborador"))});
  tables.push_back(kinds);
  tables.push_back(Table("Padron_TipoPersona")
                       .longs({"CodPadron", "CodTipoPersona"})
                       .key({"CodPadron", "CodTipoPersona"}, false));
}

void addSacraments(std::vector<Table>& tables) {
  const auto satellite = [&](const char* name) -> Table& {
    tables.push_back(Table(name).longs({"CodPadron"}).key({"CodPadron"}, false));
    return tables.back();
  };
  satellite("Padron_Nacimiento")
      .add(Type::Text, {"FechaNacimiento"}, 10)
      .longs({"CodMunicipioNac"})
      .texts({"NombrePadre", "NombreMadre"});
  satellite("Padron_Bautismo")
      .add(Type::Text, {"FechaBautizo"}, 10)
      .longs({"CodMunicipioParrBaut"})
      .texts({"ParroquiaBaut", "DireccionParrBaut"});
  satellite("Padron_Comunion").texts({"AñoComunion", "ParroquiaCom"});
  satellite("Padron_Confirmacion")
      .add(Type::Text, {"FechaConfirmacion"}, 10)
      .longs({"CodMunicipioParrConf"})
      .texts({"ParroquiaConf", "DireccionParrConf"});
  satellite("Padron_Matrimonio")
      .add(Type::Text, {"FechaMatrimonio"}, 10)
      .longs({"CodMunicipioParrMatr"})
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
                       .longs({"CodInstitucion"})
                       .index({"CodInstitucion", "Nombre"}));
  tables.push_back(Table("Grupo")
                       .counter("IDGrupo")
                       .longs({"CodActividad"})
                       .texts({"Nombre", "Año", "Dia", "Hora", "Sala"})
                       .memos({"Comentarios"})
                       .index({"CodActividad"}));
  tables.push_back(
      Table("Cargo").counter("IDCargo").texts({"Nombre"}).memos({"Descripcion"}).index({"Nombre"}));
  tables.push_back(Table("Padron_Actividad")
                       .counter("IDActividadesPadron")
                       .longs({"CodPadron", "CodGrupo", "CodCargo"})
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
