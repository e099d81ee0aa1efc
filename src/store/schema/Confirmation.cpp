#include "store/schema/Parish.h"

namespace fidaleon::store {

void addConfirmation(std::vector<Table>& tables) {
  tables.push_back(Table("Confirmacion")
                       .counter("IDConfirmacion")
                       .longs({"InstitucionSolicitud"})
                       .texts({"Nombre", "PrimerApellido", "SegundoApellido"})
                       .add(Type::Text, {"FechaNac"}, 10)
                       .longs({"CodMunicipioNac"})
                       .texts({"NombrePadre", "NombreMadre", "Domicilio"})
                       .longs({"CodMunicipioDomicilio"})
                       .texts({"FeligresDe", "EmailConfirmado", "TelefonoConfirmado", "Parroquia"})
                       .longs({"CodMunicipioParr"})
                       .texts({"DiocesisParr"})
                       .memos({"NotasMarginales", "Observaciones"})
                       .longs({"CodLibro", "Folio"})
                       .texts({"Numero"})
                       .yesNos({"Anulada"})
                       .index({"CodLibro", "Folio", "Val(Numero)"})
                       .index({"PrimerApellido", "SegundoApellido", "Nombre"}));
  tables.push_back(Table("Confirmacion_Datos")
                       .longs({"CodConfirmacion"})
                       .add(Type::Text, {"FechaConfirmacion"}, 10)
                       .texts({"Padrino", "Ministro", "CargoMinistro"})
                       .key({"CodConfirmacion"}, false));
  tables.push_back(Table("Confirmacion_Bautismo")
                       .longs({"CodConfirmacion"})
                       .add(Type::Text, {"FechaBaut"}, 10)
                       .texts({"ParroquiaBaut", "DireccionBaut"})
                       .longs({"CodMunicipioBaut"})
                       .texts({"LibroBaut"})
                       .longs({"FolioBaut"})
                       .texts({"NumeroBaut"})
                       .key({"CodConfirmacion"}, false));
}

}  // namespace fidaleon::store
