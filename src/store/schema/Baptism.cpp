// A baptism: the entry, the child, and the rows of parents and marriage that entries may share.

#include "store/schema/Parish.h"

namespace fidaleon::store {

namespace {

Table entry() {
  Table table("Bautismo");
  table.counter("IDBautismo")
      .refers("Bautismo_Padres", {"CodPadres"})
      .refers("Bautismo_Madres", {"CodMadres"})
      .refers("Bautismo_Matrimonio", {"CodMatrimonio"})
      .refers("Institucion", {"InstitucionSolicitud"})
      .add(Type::Text, {"FechaBautismo"}, 10)
      .texts({"Padrino", "Madrina", "Ministro", "Parroquia"})
      .refers("Municipio", {"CodMunicipio"})
      .texts({"Diocesis"})
      .memos({"NotasMarginales", "Observaciones"})
      .refers("Libro_Bautismo", {"CodLibro"})
      .longs({"Folio"})
      .texts({"Numero"})
      .yesNos({"Anulada"})
      .texts({"EdadPadrino", "EdadMadrina", "ParroquiaDomicilioPadrino",
              "ParroquiaDomicilioMadrina", "ProfesionPadrino", "NaturalPadrino", "EstatPadrino",
              "ProfesionMadrina", "NaturalMadrina", "EstatMadrina", "MinistroCargo"})
      .index({"CodLibro", "Folio", "Val(Numero)"})
      .figures({100000, 5000, 4, 1})
      .index({"CodPadres"})
      .index({"CodMadres"})
      .index({"CodMatrimonio"})
      .index({"FechaBautismo"})
      .figures({100000, 200});
  return table;
}

Table child() {
  Table table("Bautismo_Hijo");
  table.belongsTo("Bautismo", "CodBautismo")
      .texts({"Nombre", "PrimerApellido", "SegundoApellido", "Sexo"})
      .add(Type::Text, {"FechaNac", "HoraNac"}, 10)
      .texts({"DireccionNac"})
      .refers("Municipio", {"CodMunicipioNac"})
      .key({"CodBautismo"}, false)
      .index({"PrimerApellido", "SegundoApellido", "Nombre"});
  return table;
}

/// `side` is "Padre" or "Madre"; `line`, "Pat" or "Mat", tells the grandparents apart.
Table parent(const std::string& side, const std::string& line) {
  Table table("Bautismo_" + side + "s");
  table.counter("ID" + side + "s")
      .texts({"Nombre", "PrimerApellido", "SegundoApellido"})
      .refers("Municipio", {"CodMunicipio"})
      .texts({"Abuelo"})
      .refers("Municipio", {"CodMunicipioAbuelo"})
      .texts({"Abuela"})
      .refers("Municipio", {"CodMunicipioAbuela"});
  const auto baptised = [&](const std::string& who) {
    table.texts({(who + "ParroquiaBaut").c_str()});
    table.refers("Municipio", {(who + "CodMunicipioParrBaut").c_str()});
  };
  baptised(side);
  table.texts({(side + "Profesion").c_str()});
  baptised("Abuelo" + line);
  baptised("Abuela" + line);
  table.texts({("Telefono" + side).c_str(), ("Email" + side).c_str()})
      .index({"PrimerApellido", "SegundoApellido"});
  return table;
}

}  // namespace

void addBaptism(std::vector<Table>& tables) {
  tables.push_back(entry());
  tables.push_back(child());
  tables.push_back(parent("Padre", "Pat"));
  tables.push_back(parent("Madre", "Mat"));
  tables.push_back(Table("Bautismo_Matrimonio")
                       .counter("IDMatrimonio")
                       .texts({"Parroquia"})
                       .add(Type::Text, {"FechaMatr"}, 10)
                       .refers("Municipio", {"CodMunicipioMatr"})
                       .texts({"DireccionPadres"})
                       .refers("Municipio", {"CodMunicipioPadres"})
                       .texts({"DiocesisMatrimonio", "TelefonoPadres"})
                       .index({"FechaMatr"}));
}

}  // namespace fidaleon::store
