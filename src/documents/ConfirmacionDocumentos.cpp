#include "documents/ConfirmacionDocumentos.h"

#include "documents/Conditions.h"

namespace fidaleon::documents {

namespace {

/// Entries with their details, book and institution.
std::string entries(const std::string& which) {
  return "SELECT * FROM Confirmacion, Confirmacion_Datos, Confirmacion_Bautismo, "
         "Libro_Confirmacion , Institucion WHERE " +
         which +
         " AND Confirmacion_Datos.codConfirmacion=Confirmacion.IDConfirmacion AND "
         "Confirmacion_Bautismo.codConfirmacion=Confirmacion.IDConfirmacion AND "
         "Libro_Confirmacion.IDLibroConfirmacion=Confirmacion.CodLibro AND "
         "Institucion.IDInstitucion= Libro_Confirmacion.CodInstitucion";
}

}  // namespace

Columns confirmacionEntry(Source notes) {
  return {
      {"Nombre", Source::Stored, "Confirmacion.Nombre"},
      {"PrimerApellido", Source::Stored, "PrimerApellido"},
      {"SegundoApellido", Source::Stored, "SegundoApellido"},
      {"Domicilio", Source::Stored, "Confirmacion.Domicilio"},
      {"ProvinciaDomicilio", Source::Province, "CodMunicipioDomicilio"},
      {"PoblacionDomicilio", Source::Town, "CodMunicipioDomicilio"},
      {"FechaNacCorta", Source::ShortDate, "FechaNac"},
      {"FechaNacLarga", Source::LongDate, "FechaNac"},
      {"ProvinciaNac", Source::Province, "CodMunicipioNac"},
      {"PoblacionNac", Source::Town, "CodMunicipioNac"},
      {"FeligresDe", Source::Stored, "FeligresDe"},
      {"NombrePadre", Source::Stored, "NombrePadre"},
      {"NombreMadre", Source::Stored, "NombreMadre"},
      {"Parroquia", Source::Stored, "Parroquia"},
      {"ProvinciaParr", Source::Province, "CodMunicipioParr"},
      {"PoblacionParr", Source::Town, "CodMunicipioParr"},
      {"DiocesisParr", Source::Stored, "DiocesisParr"},
      {"Libro", Source::Stored, "Libro_Confirmacion.Nombre"},
      {"Folio", Source::Stored, "Folio"},
      {"Numero", Source::Stored, "Numero"},
      {"FechaConfirmacionCorta", Source::ShortDate, "FechaConfirmacion"},
      {"FechaConfirmacionLarga", Source::LongDate, "FechaConfirmacion"},
      {"Padrino", Source::Stored, "Padrino"},
      {"Ministro", Source::Stored, "Ministro"},
      {"CargoMinistro", Source::Stored, "CargoMinistro"},
      {"FechaBautCorta", Source::ShortDate, "FechaBaut"},
      {"FechaBautLarga", Source::LongDate, "FechaBaut"},
      {"ParroquiaBaut", Source::Stored, "ParroquiaBaut"},
      {"DireccionBaut", Source::Stored, "DireccionBaut"},
      {"ProvinciaBaut", Source::Province, "CodMunicipioBaut"},
      {"PoblacionBaut", Source::Town, "CodMunicipioBaut"},
      {"LibroBaut", Source::Stored, "LibroBaut"},
      {"FolioBaut", Source::Stored, "FolioBaut"},
      {"NumeroBaut", Source::Stored, "NumeroBaut"},
      {"InstitucionNombre", Source::Stored, "InstitucionNombre"},
      {"InstitucionTipo", Source::Stored, "InstitucionTipo"},
      {"InstitucionDiocesis", Source::Stored, "Diocesis"},
      {"InstitucionDomicilio", Source::Stored, "Institucion.Domicilio"},
      {"InstitucionCP", Source::Stored, "CP"},
      {"InstitucionPoblacion", Source::Town, "CodMunicipio"},
      {"InstitucionProvincia", Source::Province, "CodMunicipio"},
      {"InstitucionParroco", Source::Stored, "Parroco"},
      {"InstitucionEncargado", Source::Stored, "EncargadoArchivo"},
      {"NotasMarginales", notes, "NotasMarginales"},
      {"FechaSistemaLarga", Source::IssueLong},
      {"FechaSistemaCorta", Source::IssueShort},
  };
}

Columns confirmacionLiteralCertificate() {
  return replacing(confirmacionEntry(), "InstitucionEncargado",
                   {"InstitucionEncargado", Source::Keeper});
}

Columns confirmacionCertificate(Source confirmed) {
  Columns columns = replacing(confirmacionLiteralCertificate(), "FechaConfirmacionLarga",
                              {"FechaConfirmacionLarga", confirmed, "FechaConfirmacion"});
  return joined(
      {columns, {{"Edad", Source::AgeAt, "FechaNac", Quoting::Double, "FechaConfirmacion"}}});
}

Columns confirmacionNotice() {
  return joined({without(confirmacionEntry(), {"InstitucionEncargado"}),
                 {{"Edad", Source::AgeToday, "FechaNac"}}});
}

Columns confirmacionRequest() {
  const Columns entry = replacing(confirmacionEntry(), "FechaBautLarga",
                                  {"FechaBautLarga", Source::LongDateAndYear, "FechaBaut"});
  return joined({entry, {{"FechaBautLargaMeno", Source::LongDateMenorca, "FechaBaut"}}});
}

Columns confirmacionBook() {
  return joined({confirmacionEntry(),
                 {{"FechaConfiLargaMeno", Source::LongDateMenorca, "FechaConfirmacion"},
                  {"FechaBautLargaMeno", Source::LongDateMenorca, "FechaBaut"}}});
}

Columns confirmacionDuplicate() {
  return joined({ofInstitution(confirmacionEntry()),
                 {{"Edad", Source::AgeAt, "FechaNac", Quoting::Double, "FechaConfirmacion"},
                  {"Año", Source::Year, "FechaConfirmacion"},
                  {"FechaCreacionLibro", Source::ShortDate, "FechaCreacion", Quoting::Single}}});
}

Columns confirmacionIndex() {
  return indexLine("NombreLibro", {{"PrimerApellido", Source::Stored, "PrimerApellido"},
                                   {"SegundoApellido", Source::Stored, "SegundoApellido"},
                                   {"Nombre", Source::Stored, "Nombre"}});
}

std::string confirmacionStatement(std::int32_t idConfirmacion) {
  return entries("Confirmacion.IdConfirmacion=" + std::to_string(idConfirmacion));
}

std::string confirmacionRequestStatement(std::int32_t idConfirmacion) {
  const std::string key = std::to_string(idConfirmacion);
  return "SELECT TOP 1 * From Confirmacion, Confirmacion_Datos, Confirmacion_Bautismo, "
         "Libro_Confirmacion, INSTITUCION WHERE Confirmacion.IdConfirmacion=" +
         key + " And Confirmacion_Datos.CodConfirmacion = " + key +
         " And Confirmacion_Bautismo.CodConfirmacion = " + key;
}

std::string confirmacionBookStatement(std::int32_t idLibro) {
  return entries("confirmacion.codlibro=" + std::to_string(idLibro)) +
         " ORDER BY Folio, Val(Numero)";
}

std::string confirmacionIndexStatement(std::int32_t idLibro) {
  const std::string key = std::to_string(idLibro);
  return "SELECT InstitucionNombre, InstitucionTipo, Libro_Confirmacion.Nombre AS NombreLibro, "
         "Libro_Confirmacion.FechaCreacion, Confirmacion.Folio, Confirmacion.Numero, "
         "Confirmacion.Nombre, Confirmacion.PrimerApellido, Confirmacion.SegundoApellido "
         "FROM Confirmacion, Libro_Confirmacion, Institucion WHERE Confirmacion.Codlibro=" +
         key + " AND Libro_Confirmacion.IDLibroConfirmacion=" + key +
         " AND Institucion.IDInstitucion=Libro_Confirmacion.CodInstitucion "
         "ORDER BY Confirmacion.PrimerApellido, Confirmacion.SegundoApellido, Confirmacion.Nombre";
}

std::string confirmacionDuplicateStatement(std::int32_t ano, std::int32_t idInstitucion) {
  return entries(inYear("FechaConfirmacion", ano)) + ofBooks("Libro_Confirmacion", idInstitucion);
}

}  // namespace fidaleon::documents
