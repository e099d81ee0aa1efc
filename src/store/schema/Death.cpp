#include "store/schema/Parish.h"

namespace fidaleon::store {

void addDeath(std::vector<Table>& tables) {
  tables.push_back(Table("Defuncion")
                       .counter("IDDifunto")
                       .longs({"InstitucionSolicitud"})
                       .texts({"Nombre", "PrimerApellido", "SegundoApellido"})
                       .longs({"CodMunicipioNaturalDe"})
                       .texts({"DomicilioActual"})
                       .longs({"CodMunicipioActual"})
                       .texts({"EstadoCivil", "Consorte", "NumeroHijos"})
                       .memos({"NombresHijos"})
                       .texts({"NombrePadre", "NombreMadre", "Parroquia"})
                       .longs({"CodMunicipioParr"})
                       .texts({"DiocesisParr"})
                       .memos({"NotasMarginales", "Observaciones"})
                       .longs({"CodLibro", "Folio"})
                       .texts({"Numero"})
                       .yesNos({"Anulada"})
                       .texts({"Parroco"})
                       .index({"CodLibro", "Folio", "Val(Numero)"})
                       .index({"PrimerApellido", "SegundoApellido", "Nombre"}));
  tables.push_back(Table("Defuncion_Datos")
                       .longs({"CodDifunto"})
                       .texts({"Causa", "Edad"})
                       .add(Type::Text, {"FechaDefuncion", "HoraDefuncion"}, 10)
                       .texts({"DomicilioDefn"})
                       .longs({"CodMunicipioDefn"})
                       .add(Type::Text, {"FechaInhumacion"}, 10)
                       .texts({"Cementerio", "Sacramentos", "Sacerdote", "NombreContacto",
                               "PrimerApellidoContacto", "SegundoApellidoContacto", "EmailContacto",
                               "TelefonoContacto", "RelacionDifunto"})
                       .key({"CodDifunto"}, false));
}

}  // namespace fidaleon::store
