#include "documents/DefuncionDocumentos.h"

#include "documents/Conditions.h"

namespace fidaleon::documents {

namespace {

const Columns& position() {
  static const Columns columns{
      {"Libro", Source::Stored, "Libro"},
      {"Folio", Source::Stored, "Folio"},
      {"Numero", Source::Stored, "Numero"},
      {"FechaInhumacionCorta", Source::ShortDate, "FechaInhumacion"},
      {"FechaInhumacionLarga", Source::LongDate, "FechaInhumacion"},
      {"Parroquia", Source::Stored, "Parroquia"},
  };
  return columns;
}

const Columns& person() {
  static const Columns columns{
      {"InstitucionParroco", Source::Stored, "Parroco"},
      {"Cementerio", Source::Stored, "Cementerio"},
      {"Nombre", Source::Stored, "Nombre"},
      {"PrimerApellido", Source::Stored, "PrimerApellido"},
      {"SegundoApellido", Source::Stored, "SegundoApellido"},
      {"EstadoCivil", Source::Stored, "EstadoCivil"},
      {"Consorte", Source::Stored, "Consorte"},
      {"DomicilioActual", Source::Stored, "DomicilioActual"},
      {"PoblacionActual", Source::Town, "CodMunicipioActual"},
      {"ProvinciaActual", Source::Province, "CodMunicipioActual"},
  };
  return columns;
}

const Columns& placeOfDeath() {
  static const Columns columns{
      {"DomicilioDefn", Source::Stored, "DomicilioDefn"},
      {"PoblacionDefn", Source::Town, "CodMunicipioDefn"},
      {"ProvinciaDefn", Source::Province, "CodMunicipioDefn"},
  };
  return columns;
}

/// `hour` is how the time of death comes where there is none.
Columns death(Source hour) {
  return {
      {"FechaDefuncionCorta", Source::ShortDate, "FechaDefuncion"},
      {"FechaDefuncionLarga", Source::LongDate, "FechaDefuncion"},
      {"HoraDefuncion", hour, "HoraDefuncion"},
      {"Causa", Source::Stored, "Causa"},
      {"PoblacionNaturalDe", Source::Town, "CodMunicipioNaturalDe"},
      {"ProvinciaNaturalDe", Source::Province, "CodMunicipioNaturalDe"},
      {"Edad", Source::Stored, "Edad"},
  };
}

/// The certificate whose notes come as `notes`.
Columns certificate(Source notes) {
  return joined({position(),
                 {{"PoblacionParr", Source::Town, "CodMunicipioParr"},
                  {"ProvinciaParr", Source::Province, "CodMunicipioParr"},
                  {"DiocesisParr", Source::Stored, "DiocesisParr"}},
                 person(),
                 placeOfDeath(),
                 death(Source::Stored),
                 {{"NotasMarginales", notes, "NotasMarginales"},
                  {"NumeroHijos", Source::Stored, "NumeroHijos"},
                  {"NombresHijos", Source::Stored, "NombresHijos"},
                  {"Sacramentos", Source::Stored, "Sacramentos"},
                  {"Sacerdote", Source::Stored, "Sacerdote"},
                  {"InstitucionEncargado", Source::Keeper},
                  {"NombrePadre", Source::Stored, "NombrePadre"},
                  {"NombreMadre", Source::Stored, "NombreMadre"},
                  {"FechaSistemaLarga", Source::IssueLong},
                  {"InstitucionNombre", Source::Stored, "Institucion"},
                  {"InstitucionTipo", Source::Stored, "InstitucionTipo"},
                  {"InstitucionPoblacion", Source::Town, "CodMunicipio"},
                  {"InstitucionProvincia", Source::Province, "CodMunicipio"},
                  {"InstitucionDiocesis", Source::Stored, "Diocesis"},
                  {"FechaSistemaCorta", Source::IssueShort}}});
}

/// Entries with their book and its institution; `further` are more columns.
std::string entries(const std::string& which, const char* further = "") {
  return "SELECT Libro_Defuncion.Nombre AS Libro, Defuncion.Numero AS Numero, Defuncion.Folio AS "
         "Folio, Defuncion_Datos.FechaInhumacion, Defuncion.Parroquia, Defuncion.CodMunicipioParr, "
         "Defuncion.DiocesisParr, Defuncion.Parroco, Defuncion_Datos.Cementerio, Defuncion.Nombre "
         "AS Nombre, Defuncion.PrimerApellido, Defuncion.SegundoApellido, Defuncion.EstadoCivil, "
         "Defuncion.Consorte, Defuncion.NotasMarginales, Defuncion.DomicilioActual, "
         "Defuncion.CodMunicipioActual, Defuncion_Datos.DomicilioDefn, "
         "Defuncion_Datos.CodMunicipioDefn, Defuncion_Datos.FechaDefuncion, "
         "Defuncion_Datos.HoraDefuncion, Defuncion_Datos.Causa, Defuncion_Datos.Edad, "
         "Defuncion.CodMunicipioNaturalDe, Defuncion.NumeroHijos, Defuncion.NombresHijos, "
         "Defuncion_Datos.Sacramentos, Defuncion_Datos.Sacerdote, Defuncion.NombrePadre, "
         "Defuncion.NombreMadre, Institucion.InstitucionNombre AS Institucion, InstitucionTipo, "
         "Institucion.CodMunicipio, Institucion.Diocesis" +
         std::string(further) +
         " FROM Defuncion, Defuncion_Datos, Libro_Defuncion, Institucion WHERE "
         "Libro_Defuncion.CodInstitucion=Institucion.IDInstitucion AND "
         "Defuncion.CodLibro=Libro_Defuncion.IDLibroDefuncion AND "
         "Defuncion_Datos.CodDifunto=Defuncion.IDDifunto AND " +
         which;
}

}  // namespace

Columns defuncionLiteralCertificate() {
  return certificate(Source::Stored);
}

Columns defuncionCertificate(Source notes) {
  return without(certificate(notes), {"DomicilioActual", "PoblacionActual", "ProvinciaActual"});
}

Columns defuncionBook(Source hour) {
  return joined({position(),
                 {{"DiocesisParr", Source::Stored, "DiocesisParr"},
                  {"PoblacionParr", Source::Town, "CodMunicipioParr"},
                  {"ProvinciaParr", Source::Province, "CodMunicipioParr"}},
                 person(),
                 death(hour),
                 {{"NumeroHijos", Source::Stored, "NumeroHijos"},
                  {"NombresHijos", Source::Stored, "NombresHijos"},
                  {"NombrePadre", Source::Stored, "NombrePadre"},
                  {"NombreMadre", Source::Stored, "NombreMadre"},
                  {"Sacramentos", Source::Stored, "Sacramentos"},
                  {"Sacerdote", Source::Stored, "Sacerdote"}}});
}

Columns defuncionEntryMenorca() {
  return joined({defuncionBook(Source::DashesIfEmpty), {{"FechaSistemaLarga", Source::IssueLong}}});
}

Columns defuncionEntry() {
  return joined(
      {defuncionEntryMenorca(), {{"NotasMarginales", Source::PaddedNotes, "NotasMarginales"}}});
}

Columns defuncionDuplicate() {
  return {{"Libro", Source::Stored, "Libro"},
          {"Folio", Source::Stored, "Folio"},
          {"Numero", Source::Stored, "Numero"},
          {"PrimerApellido", Source::Stored, "PrimerApellido"},
          {"SegundoApellido", Source::Stored, "SegundoApellido"},
          {"Nombre", Source::Stored, "Nombre"},
          {"FechaDefuncionCorta", Source::ShortDate, "FechaDefuncion"},
          {"FechaInhumacionCorta", Source::ShortDate, "FechaInhumacion"},
          {"Consorte", Source::Stored, "Consorte"},
          {"NombresHijos", Source::Stored, "NombresHijos"},
          {"NombrePadre", Source::Stored, "NombrePadre"},
          {"NombreMadre", Source::Stored, "NombreMadre"},
          {"Sacramentos", Source::Stored, "Sacramentos"},
          {"Sacerdote", Source::Stored, "Sacerdote"},
          {"Parroquia", Source::Stored, "Parroquia"},
          {"PoblacionDefn", Source::Town, "CodMunicipioDefn"},
          {"ProvinciaDefn", Source::Province, "CodMunicipioDefn"},
          {"DiocesisParr", Source::Stored, "DiocesisParr"},
          {"FechaDefuncionLarga", Source::LongDate, "FechaDefuncion"},
          {"InstitucionParroco", Source::Stored, "Parroco"},
          {"InstitucionNombre", Source::InstitutionStored, "InstitucionNombre"},
          {"InstitucionTipo", Source::InstitutionStored, "InstitucionTipo"},
          {"InstitucionPoblacion", Source::InstitutionTown, "CodMunicipio"},
          {"InstitucionProvincia", Source::InstitutionProvince, "CodMunicipio"},
          {"Año", Source::Year, "FechaDefuncion"},
          {"FechaSistemaLarga", Source::IssueLong},
          {"FechaCreacionLibro", Source::ShortDate, "FechaCreacion", Quoting::Single}};
}

Columns defuncionIndex() {
  return indexLine("Libro_Defuncion.Nombre",
                   {{"PrimerApellido", Source::Stored, "PrimerApellido"},
                    {"SegundoApellido", Source::Stored, "SegundoApellido"},
                    {"Nombre", Source::Stored, "Defuncion.Nombre"}});
}

std::string defuncionStatement(std::int32_t idDifunto) {
  return entries("Defuncion.IDDifunto=" + std::to_string(idDifunto));
}

std::string defuncionBookStatement(std::int32_t idLibro) {
  return entries("Defuncion.CodLibro=" + std::to_string(idLibro)) +
         " ORDER BY Defuncion.Folio, Val(Defuncion.Numero)";
}

std::string defuncionIndexStatement(std::int32_t idLibro) {
  return "SELECT * FROM Defuncion, Defuncion_Datos, Libro_Defuncion, Institucion WHERE "
         "Defuncion.CodLibro=" +
         std::to_string(idLibro) +
         " AND Defuncion_Datos.CodDifunto=Defuncion.IDDifunto AND "
         "Libro_Defuncion.IDLibroDefuncion=Defuncion.CodLibro AND "
         "Institucion.IDInstitucion=Libro_Defuncion.CodInstitucion "
         "ORDER BY Defuncion.PrimerApellido, Defuncion.SegundoApellido, Defuncion.Nombre";
}

std::string defuncionDuplicateStatement(std::int32_t ano, std::int32_t idInstitucion) {
  return entries(inYear("FechaDefuncion", ano), ", Libro_Defuncion.FechaCreacion") +
         ofBooks("Libro_Defuncion", idInstitucion);
}

}  // namespace fidaleon::documents
