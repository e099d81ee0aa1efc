#include "documents/DefuncionDocumentos.h"

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

/// Entries with their book and its institution.
std::string entries(const std::string& which) {
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
         "Institucion.CodMunicipio, Institucion.Diocesis FROM Defuncion, Defuncion_Datos, "
         "Libro_Defuncion, Institucion WHERE "
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

std::string defuncionStatement(std::int32_t idDifunto) {
  return entries("Defuncion.IDDifunto=" + std::to_string(idDifunto));
}

}  // namespace fidaleon::documents
