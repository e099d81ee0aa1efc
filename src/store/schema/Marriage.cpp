// A marriage: the entry, the two spouses with their civil registry and baptism data, the
// celebration, the witnesses of the dossier and the sworn examinations.

#include "store/schema/Parish.h"

namespace fidaleon::store {

namespace {

Table entry() {
  Table table("Matrimonio");
  table.counter("IDMatrimonio")
      .refers("Matrimonio_Novios", {"CodNovios"})
      .refers("Matrimonio_Novias", {"CodNovias"})
      .refers("Institucion", {"InstitucionSolicitud"})
      .texts({"Parroquia"})
      .refers("Municipio", {"CodMunicipio"})
      .texts({"Diocesis"})
      .longs({"Estado"})
      .memos({"NotasMarginales", "Observaciones"})
      .refers("Libro_Matrimonio", {"CodLibro"})
      .longs({"Folio"})
      .texts({"Numero"})
      .yesNos({"Anulada"})
      .index({"CodLibro", "Folio", "Val(Numero)"})
      .figures({1000000, 1000, 4, 1})
      .index({"CodNovios"})
      .figures({1000000, 1})
      .index({"CodNovias"})
      .figures({1000000, 1});
  return table;
}

/// `spouse` is "Novio" or "Novia".
void addSpouse(std::vector<Table>& tables, const std::string& spouse) {
  const std::string base = "Matrimonio_" + spouse + "s";
  const std::string link = "Cod" + spouse + "s";
  tables.push_back(
      Table(base)
          .counter("ID" + spouse + "s")
          .texts({"Nombre", "PrimerApellido", "SegundoApellido", "DNI", "Edad", "Religion"})
          .add(Type::Text, {"FechaNac"}, 10)
          .refers("Municipio", {"CodMunicipioNac"})
          .texts({"DomicilioActual"})
          .refers("Municipio", {"CodMunicipioActual"})
          .texts({"DomicilioAnterior"})
          .refers("Municipio", {"CodMunicipioAnterior"})
          .add(Type::Text, {"FechaConfirmacion"}, 10)
          .refers("Municipio", {"CodMunicipioConfirmacion"})
          .add(Type::Byte, {"TResidenciaDomAct"})
          .texts({"Profesion", "DiocesisNac", "Nacionalidad", ("Email" + spouse).c_str(),
                  ("Telefono" + spouse).c_str(), "ParroquiaExhorto", "PoblacionExhorto",
                  "DiocesisExhorto"})
          .index({"PrimerApellido", "SegundoApellido", "Nombre"}));
  tables.push_back(Table(base + "_RegCivil")
                       .belongsTo(base, link)
                       .texts({"EstadoCivil", "NombrePadre", "NombreMadre"})
                       .refers("Municipio", {"MunicipioInscrito"}, Type::Text)
                       .texts({"Tomo", "Pagina", "NombreCivil", "SujetoDerecho"})
                       .key({link.c_str()}, false)
                       .figures({100000, 1}));
  tables.push_back(Table(base + "_Bautismo")
                       .belongsTo(base, link)
                       .add(Type::Text, {"FechaBaut"}, 10)
                       .texts({"ParroquiaBaut", "DiocesisBaut"})
                       .refers("Municipio", {"CodMunicipioBaut"})
                       .texts({"LibroBaut"})
                       .longs({"FolioBaut"})
                       .texts({"NumeroBaut"})
                       .key({link.c_str()}, false)
                       .figures({100000, 1}));
}

Table celebration() {
  Table table("Matrimonio_Compromiso");
  table.belongsTo("Matrimonio", "CodMatrimonio")
      .add(Type::Text, {"FechaMatrimonio", "HoraMatrimonio"}, 10)
      .texts({"Padrino", "Madrina", "Testigos", "Celebrante", "ExpedInst", "DomicilioMatrimonio"})
      .refers("Municipio", {"CodMunicipioDomicMatr"})
      .texts({"TelefonoDomicMatr", "CPCompromiso", "NihilObstat", "Demarcacion",
              "TestigosParroquia", "Testigo1", "Testigo1_Natural_de", "Testigo1_Poblacion",
              "Testigo2", "Testigo2_Natural_de", "Testigo2_Poblacion"})
      .key({"CodMatrimonio"}, false)
      .figures({100000, 1})
      .from(6)
      .index({"FechaMatrimonio"})
      .figures({100000, 200});
  return table;
}

Table dossier() {
  Table table("Matrimonio_Expediente");
  table.belongsTo("Matrimonio", "CodMatrimonio");
  for (const std::string n : {"1", "2"}) {
    table.texts({("NombreTestigo" + n).c_str(), ("PrimerApellidoTestigo" + n).c_str(),
                 ("SegundoApellidoTestigo" + n).c_str(), ("DNITestigo" + n).c_str(),
                 ("DomicilioTestigo" + n).c_str()});
    table.refers("Municipio", {("CodMunicipioTestigo" + n).c_str()});
  }
  table.key({"CodMatrimonio"}, false).figures({100000, 1});
  return table;
}

Table examinations() {
  Table table("Matrimonio_Cursos");
  table.belongsTo("Matrimonio", "CodMatrimonio").longs({"Cod_Tipo_Persona"});
  for (int answer = 0; answer <= 33; ++answer) table.memos({std::to_string(answer).c_str()});
  table.key({"CodMatrimonio", "Cod_Tipo_Persona"}, false);
  return table;
}

}  // namespace

void addMarriage(std::vector<Table>& tables) {
  tables.push_back(entry());
  addSpouse(tables, "Novio");
  addSpouse(tables, "Novia");
  tables.push_back(celebration());
  tables.push_back(dossier());
  tables.push_back(examinations());
}

}  // namespace fidaleon::store
