#include "store/schema/Parish.h"

namespace fidaleon::store {

void addConfirmation(std::vector<Table>& tables) {
  tables.push_back(Table("Confirmacion")
                       .counter("IDConfirmacion")
                       .refers("Institucion", {"InstitucionSolicitud"})
                       .texts({"Nombre", "PrimerApellido", "SegundoApellido"})
                       .add(Type::Text, {"FechaNac"}, 10)
                       .refers("Municipio", {"CodMunicipioNac"})
                       .texts({"NombrePadre", "NombreMadre", "Domicilio"})
                       .refers("Municipio", {"CodMunicipioDomicilio"})
                       .texts({"FeligresDe", "EmailConfirmado", "TelefonoConfirmado", "Parroquia"})
                       .refers("Municipio", {"CodMunicipioParr"})
                       .texts({"DiocesisParr"})
                       .memos({"NotasMarginales", "Observaciones"})
                       .refers("Libro_Confirmacion", {"CodLibro"})
                       .longs({"Folio"})
                       .texts({"Numero"})
                       .yesNos({"Anulada"})
                       .index({"CodLibro", "Folio", "Val(Numero)"})
                       .figures({1000000, 1000, 4, 1})
                       .index({"PrimerApellido", "SegundoApellido", "Nombre"}));
  tables.push_back(Table("Confirmacion_Datos")
                       .belongsTo("Confirmacion", "CodConfirmacion")
                       .add(Type::Text, {"FechaConfirmacion"}, 10)
                       .texts({"Padrino", "Ministro", "CargoMinistro"})
                       .key({"CodConfirmacion"}, false)
                       .from(5)
                       .index({"FechaConfirmacion"})
                       .figures({100000, 200}));
  tables.push_back(Table("Confirmacion_Bautismo")
                       .belongsTo("Confirmacion", "CodConfirmacion")
                       .add(Type::Text, {"FechaBaut"}, 10)
                       .texts({"ParroquiaBaut", "DireccionBaut"})
                       .refers("Municipio", {"CodMunicipioBaut"})
                       .texts({"LibroBaut"})
                       .longs({"FolioBaut"})
                       .texts({"NumeroBaut"})
                       .key({"CodConfirmacion"}, false));
}

}  // namespace fidaleon::store
