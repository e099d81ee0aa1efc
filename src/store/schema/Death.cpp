#include "store/schema/Parish.h"

namespace fidaleon::store {

void addDeath(std::vector<Table>& tables) {
  tables.push_back(Table("Defuncion")
                       .counter("IDDifunto")
                       .refers("Institucion", {"InstitucionSolicitud"})
                       .texts({"Nombre", "PrimerApellido", "SegundoApellido"})
                       .refers("Municipio", {"CodMunicipioNaturalDe"})
                       .texts({"DomicilioActual"})
                       .refers("Municipio", {"CodMunicipioActual"})
                       .texts({"EstadoCivil", "Consorte", "NumeroHijos"})
                       .memos({"NombresHijos"})
                       .texts({"NombrePadre", "NombreMadre", "Parroquia"})
                       .refers("Municipio", {"CodMunicipioParr"})
                       .texts({"DiocesisParr"})
                       .memos({"NotasMarginales", "Observaciones"})
                       .refers("Libro_Defuncion", {"CodLibro"})
                       .longs({"Folio"})
                       .texts({"Numero"})
                       .yesNos({"Anulada"})
                       .texts({"Parroco"})
                       .index({"CodLibro", "Folio", "Val(Numero)"})
                       .figures({1000000, 1000, 4, 1})
                       .index({"PrimerApellido", "SegundoApellido", "Nombre"}));
  tables.push_back(Table("Defuncion_Datos")
                       .belongsTo("Defuncion", "CodDifunto")
                       .texts({"Causa", "Edad"})
                       .add(Type::Text, {"FechaDefuncion", "HoraDefuncion"}, 10)
                       .texts({"DomicilioDefn"})
                       .refers("Municipio", {"CodMunicipioDefn"})
                       .add(Type::Text, {"FechaInhumacion"}, 10)
                       .texts({"Cementerio", "Sacramentos", "Sacerdote", "NombreContacto",
                               "PrimerApellidoContacto", "SegundoApellidoContacto", "EmailContacto",
                               "TelefonoContacto", "RelacionDifunto"})
                       .key({"CodDifunto"}, false)
                       .from(5)
                       .index({"FechaDefuncion"})
                       .figures({100000, 200}));
}

}  // namespace fidaleon::store
