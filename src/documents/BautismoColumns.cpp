#include "documents/BautismoColumns.h"

namespace fidaleon::documents {

namespace {

constexpr const char* CHILD_WORD = "[Al niño/A la niña]";
constexpr const char* BORN_WORD = "[Nacido/Nacida]";

const Columns& institution() {
  static const Columns columns{
      {"InstitucionNombre", Source::Printable, "InstitucionNombre"},
      {"InstitucionTipo", Source::Printable, "InstitucionTipo"},
      {"InstitucionDiocesis", Source::Printable, "DiocesisInst"},
      {"InstitucionPoblacion", Source::Town, "codMunicipioInst"},
      {"InstitucionProvincia", Source::Province, "codMunicipioInst"},
  };
  return columns;
}

/// The institution, the keeper and the notes of a certificate.
Columns signedInstitution() {
  return joined({institution(),
                 {{"InstitucionEncargado", Source::Keeper},
                  {"NotasMarginales", Source::Printable, "NotasMarginales"}}});
}

/// The entry without its book, each grandparent's province beside the town.
Columns requestedEntry() {
  Columns columns = without(bautismoEntry(), {"Libro"});
  for (const Column& province : bautismoGrandparentProvinces()) {
    for (const Column& town : bautismoEntry())
      if (town.source == Source::Town && std::string_view(town.field) == province.field)
        columns = insertingBehind(columns, town.name, province);
  }
  return columns;
}

}  // namespace

const Columns& bautismoEntry() {
  static const Columns columns{
      {"Libro", Source::Stored, "NombreLibro"},
      {"Folio", Source::Stored, "Folio"},
      {"Numero", Source::Stored, "Numero"},
      {"PrimerApellidoHijo", Source::Stored, "PrimerApellidoHijo"},
      {"SegundoApellidoHijo", Source::Stored, "SegundoApellidoHijo"},
      {"NombreHijo", Source::Stored, "NombreHijo"},
      {"FechaBautismoCorta", Source::ShortDate, "FechaBautismo"},
      {"ParroquiaBaut", Source::Stored, "ParroquiaBaut"},
      {"PoblacionBaut", Source::Town, "CodMunicipioBaut"},
      {"ProvinciaBaut", Source::Province, "CodMunicipioBaut"},
      {"Diocesis", Source::Stored, "Diocesis"},
      {"FechaBautismoLarga", Source::LongDate, "FechaBautismo"},
      {"Ministro", Source::Stored, "Ministro"},
      {CHILD_WORD, Source::ChildWord, "Sexo"},
      {BORN_WORD, Source::BornWord, "Sexo"},
      {"FechaNacCorta", Source::ShortDate, "FechaNac"},
      {"FechaNacLarga", Source::LongDate, "FechaNac"},
      {"HoraNac", Source::Stored, "HoraNac"},
      {"DireccionNac", Source::Stored, "DireccionNac"},
      {"PoblacionNac", Source::Town, "CodMunicipioNac"},
      {"ProvinciaNac", Source::Province, "CodMunicipioNac"},
      {"NombrePadre", Source::Stored, "NombrePadre"},
      {"PrimerApellidoPadre", Source::Stored, "PrimerApellidoPadre"},
      {"SegundoApellidoPadre", Source::Stored, "SegundoApellidoPadre"},
      {"PoblacionPadre", Source::Town, "CodMunicipioPadre"},
      {"ProvinciaPadre", Source::Province, "CodMunicipioPadre"},
      {"NombreMadre", Source::Stored, "NombreMadre"},
      {"PrimerApellidoMadre", Source::Stored, "PrimerApellidoMadre"},
      {"SegundoApellidoMadre", Source::Stored, "SegundoApellidoMadre"},
      {"PoblacionMadre", Source::Town, "CodMunicipioMadre"},
      {"ProvinciaMadre", Source::Province, "CodMunicipioMadre"},
      {"DireccionPadres", Source::Stored, "DireccionPadres"},
      {"PoblacionPadres", Source::Town, "CodMunicipioPadres"},
      {"ProvinciaPadres", Source::Province, "CodMunicipioPadres"},
      {"ParroquiaMatr", Source::Stored, "ParroquiaMatr"},
      {"PoblacionMatr", Source::Town, "CodMunicipioMatr"},
      {"ProvinciaMatr", Source::Province, "CodMunicipioMatr"},
      {"FechaMatrCorta", Source::ShortDate, "FechaMatr"},
      {"FechaMatrLarga", Source::LongDate, "FechaMatr"},
      {"AbueloPaterno", Source::Stored, "AbueloPaterno"},
      {"PoblacionAbueloPaterno", Source::Town, "CodMunicipioAbueloPaterno"},
      {"AbuelaPaterna", Source::Stored, "AbuelaPaterna"},
      {"PoblacionAbuelaPaterna", Source::Town, "CodMunicipioAbuelaPaterna"},
      {"AbueloMaterno", Source::Stored, "AbueloMaterno"},
      {"PoblacionAbueloMaterno", Source::Town, "CodMunicipioAbueloMaterno"},
      {"AbuelaMaterna", Source::Stored, "AbuelaMaterna"},
      {"PoblacionAbuelaMaterna", Source::Town, "CodMunicipioAbuelaMaterna"},
      {"Padrino", Source::Stored, "Padrino"},
      {"Madrina", Source::Stored, "Madrina"},
  };
  return columns;
}

const Columns& bautismoGrandparentProvinces() {
  static const Columns columns{
      {"ProvinciaAbueloPaterno", Source::Province, "CodMunicipioAbueloPaterno"},
      {"ProvinciaAbuelaPaterna", Source::Province, "CodMunicipioAbuelaPaterna"},
      {"ProvinciaAbueloMaterno", Source::Province, "CodMunicipioAbueloMaterno"},
      {"ProvinciaAbuelaMaterna", Source::Province, "CodMunicipioAbuelaMaterna"},
  };
  return columns;
}

Columns bautismoEntryWithNotes(Source notes) {
  Columns columns = joined({bautismoEntry(),
                            bautismoGrandparentProvinces(),
                            {{"NotasMarginales", notes, "NotasMarginales", Quoting::Single}}});
  return replacing(columns, "HoraNac", {"HoraNac", Source::DashesIfEmpty, "HoraNac"});
}

Columns bautismoCertificate() {
  return joined(
      {without(bautismoEntry(), {CHILD_WORD, BORN_WORD}),
       signedInstitution(),
       {{"FechaSistemaLarga", Source::IssueLong}, {"Sexo", Source::FormOfAddress, "Sexo"}},
       bautismoGrandparentProvinces(),
       {{"FechaSistemaCorta", Source::IssueShort}}});
}

Columns bautismoCertificateMenorca() {
  return joined({bautismoCertificate(),
                 {{"FechaNacLargaMeno", Source::LongDateMenorca, "FechaNac"},
                  {"FechaSisteLargMeno", Source::IssueMenorca},
                  {"FechaBauLargaMeno", Source::LongDateMenorca, "FechaBautismo"}}});
}

Columns bautismoLiteralCertificate() {
  return joined(
      {bautismoEntry(),
       signedInstitution(),
       {{"FechaSistemaCorta", Source::IssueShort}, {"FechaSistemaLarga", Source::IssueLong}},
       bautismoGrandparentProvinces()});
}

Columns bautismoLiteralCertificateMenorca() {
  return joined({replacing(bautismoLiteralCertificate(), "FechaSistemaLarga",
                           {"FechaSisteLargMeno", Source::IssueMenorca}),
                 {{"FechaNacLargaMeno", Source::LongDateMenorca, "FechaNac"},
                  {"DiocesisMatrimonio", Source::Printable, "DiocesisMatrimonio"},
                  {"ProfesionPadrino", Source::Printable, "ProfesionPadrino"},
                  {"NaturalPadrino", Source::Printable, "NaturalPadrino"},
                  {"EstatPadrino", Source::Printable, "EstatPadrino"},
                  {"ProfesionMadrina", Source::Printable, "ProfesionMadrina"},
                  {"NaturalMadrina", Source::Printable, "NaturalMadrina"},
                  {"EstatMadrina", Source::Printable, "EstatMadrina"},
                  {"MadreProfesion", Source::Printable, "MadreProfesion"},
                  {"PadreProfesion", Source::Printable, "PadreProfesion"}}});
}

Columns bautismoRequest() {
  const Columns capitals =
      replacing(institution(), "InstitucionTipo",
                {"InstitucionTipo", Source::PrintableUpper, "InstitucionTipo"});
  return joined({requestedEntry(),
                 capitals,
                 {{"NotasMarginales", Source::Stored, "NotasMarginales"},
                  {"FechaSistemaLarga", Source::IssueLong},
                  {"FechaSistemaCorta", Source::IssueShort}}});
}

Columns bautismoRequestSantiago() {
  const Columns base =
      replacing(without(bautismoRequest(), {"InstitucionTipo"}), "InstitucionNombre",
                {"InstitucionNombre", Source::Printable, "nombreInst"});
  return joined({base,
                 {{"EdadPadrino", Source::DashesIfEmpty, "EdadPadrino"},
                  {"ParroquiaDomicilioPadrino", Source::Stored, "ParroquiaDomicilioPadrino"},
                  {"EdadMadrina", Source::DashesIfEmpty, "EdadMadrina"},
                  {"ParroquiaDomicilioMadrina", Source::Stored, "ParroquiaDomicilioMadrina"},
                  {"PadreParroquiaBaut", Source::Stored, "PadreParroquiaBaut"},
                  {"PadreProfesion", Source::Stored, "PadreProfesion"},
                  {"PadreProvinciaParrBaut", Source::Province, "PadreCodMunicipioParrBaut"},
                  {"MadreParroquiaBaut", Source::Stored, "MadreParroquiaBaut"},
                  {"MadreProfesion", Source::Stored, "MadreProfesion"},
                  {"MadreProvinciaParrBaut", Source::Province, "MadreCodMunicipioParrBaut"},
                  {"AbueloPatParroquiaBaut", Source::Stored, "AbueloPatParroquiaBaut"},
                  {"AbueloPatProvinciaParrBaut", Source::Province, "AbueloPatCodMunicipioParrBaut"},
                  {"AbuelaPatParroquiaBaut", Source::Stored, "AbuelaPatParroquiaBaut"},
                  {"AbuelaPatProvinciaParrBaut", Source::Province, "AbuelaPatCodMunicipioParrBaut"},
                  {"AbueloMatParroquiaBaut", Source::Stored, "AbueloMatParroquiaBaut"},
                  {"AbueloMatProvinciaParrBaut", Source::Province, "AbueloMatCodMunicipioParrBaut"},
                  {"AbuelaMatParroquiaBaut", Source::Stored, "AbuelaMatParroquiaBaut"},
                  {"AbuelaMatProvinciaParrBaut", Source::Province, "AbuelaMatCodMunicipioParrBaut"},
                  {"TelefonoPadres", Source::Stored, "TelefonoPadres"}}});
}

Columns bautismoVolante() {
  return {
      {"Libro", Source::Stored, "NombreLibro"},
      {"Folio", Source::Stored, "Folio"},
      {"Numero", Source::Stored, "Numero"},
      {"PrimerApellidoHijo", Source::Stored, "PrimerApellidoHijo"},
      {"SegundoApellidoHijo", Source::Stored, "SegundoApellidoHijo"},
      {"NombreHijo", Source::Stored, "NombreHijo"},
      {"FechaNacCorta", Source::ShortDate, "FechaNac"},
      {"FechaNacLarga", Source::LongDate, "FechaNac"},
      {"FechaBautismoCorta", Source::ShortDate, "FechaBautismo"},
      {"FechaBautismoLarga", Source::LongDate, "FechaBautismo"},
      {CHILD_WORD, Source::ChildWord, "Sexo"},
      {BORN_WORD, Source::BornWord, "Sexo"},
      {"NombrePadre", Source::Stored, "NombrePadre"},
      {"PrimerApellidoPadre", Source::Stored, "PrimerApellidoPadre"},
      {"SegundoApellidoPadre", Source::Stored, "SegundoApellidoPadre"},
      {"NombreMadre", Source::Stored, "NombreMadre"},
      {"PrimerApellidoMadre", Source::Stored, "PrimerApellidoMadre"},
      {"SegundoApellidoMadre", Source::Stored, "SegundoApellidoMadre"},
      {"InstitucionNombre", Source::Printable, "InstitucionNombre"},
      {"InstitucionTipo", Source::Printable, "InstitucionTipo"},
      {"InstitucionDiocesis", Source::Printable, "DiocesisInst"},
      {"InstitucionDomicilio", Source::Stored, "DomicilioInst"},
      {"InstitucionPoblacion", Source::Town, "codMunicipioInst"},
      {"InstitucionProvincia", Source::Province, "codMunicipioInst"},
      {"InstitucionCP", Source::Stored, "CPInst"},
      {"NotasMarginales", Source::Stored, "NotasMarginales"},
      {"FechaSistemaLarga", Source::IssueLong},
      {"FechaSistemaCorta", Source::IssueShort},
      {"FechaSisteLargMeno", Source::IssueMenorca},
      {"FechaBauLargaMeno", Source::LongDateMenorca, "FechaBautismo"},
      {"FechaNacLargaMeno", Source::LongDateMenorca, "FechaNac"},
  };
}

Columns bautismoBook() {
  return joined({bautismoEntry(), bautismoGrandparentProvinces()});
}

Columns bautismoIndex() {
  return indexLine("NombreLibro", {{"PrimerApellidoHijo", Source::Stored, "PrimerApellidoHijo"},
                                   {"SegundoApellidoHijo", Source::Stored, "SegundoApellidoHijo"},
                                   {"NombreHijo", Source::Stored, "NombreHijo"}});
}

// The dialog would leave the Null of a place as it is; a look-up gives none, so that its places
// come out as those of the other documents.
Columns bautismoDuplicate() {
  return joined({without(bautismoEntry(), {CHILD_WORD, BORN_WORD}),
                 {{"InstitucionParroco", Source::InstitutionStored, "Parroco"},
                  {"InstitucionNombre", Source::InstitutionStored, "InstitucionNombre"},
                  {"InstitucionTipo", Source::InstitutionStored, "InstitucionTipo"},
                  {"InstitucionPoblacion", Source::InstitutionTown, "CodMunicipio"},
                  {"InstitucionProvincia", Source::InstitutionProvince, "CodMunicipio"},
                  {"Año", Source::Year, "FechaBautismo"},
                  {"FechaSistemaLarga", Source::IssueLong},
                  {"FechaCreacionLibro", Source::ShortDate, "FechaCreacion", Quoting::Single}}});
}

}  // namespace fidaleon::documents
