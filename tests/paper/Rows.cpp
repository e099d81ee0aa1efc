#include "paper/Rows.h"

#include <map>
#include <sstream>

#include "text/Utf8.h"

namespace fidaleon::paper::test {
namespace {

std::vector<std::string> words(const std::string& list) {
  std::vector<std::string> out;
  std::istringstream in(list);
  for (std::string w; std::getline(in, w, ',');) out.push_back(text::trim(w));
  return out;
}

void add(std::vector<std::string>& to, const std::string& list) {
  for (const std::string& w : words(list)) to.push_back(w);
}

const char* const kChild =
    "Folio, Numero, PrimerApellidoHijo, SegundoApellidoHijo, NombreHijo, FechaBautismoCorta, "
    "ParroquiaBaut, PoblacionBaut, ProvinciaBaut, Diocesis, FechaBautismoLarga, Ministro";
const char* const kGender = "[Al niño/A la niña], [Nacido/Nacida]";
const char* const kFamily =
    "FechaNacCorta, FechaNacLarga, HoraNac, DireccionNac, PoblacionNac, ProvinciaNac, "
    "NombrePadre, PrimerApellidoPadre, SegundoApellidoPadre, PoblacionPadre, ProvinciaPadre, "
    "NombreMadre, PrimerApellidoMadre, SegundoApellidoMadre, PoblacionMadre, ProvinciaMadre, "
    "DireccionPadres, PoblacionPadres, ProvinciaPadres, ParroquiaMatr, PoblacionMatr, "
    "ProvinciaMatr, FechaMatrCorta, FechaMatrLarga, AbueloPaterno, PoblacionAbueloPaterno, "
    "AbuelaPaterna, PoblacionAbuelaPaterna, AbueloMaterno, PoblacionAbueloMaterno, "
    "AbuelaMaterna, PoblacionAbuelaMaterna, Padrino, Madrina, ProvinciaAbueloPaterno, "
    "ProvinciaAbuelaPaterna, ProvinciaAbueloMaterno, ProvinciaAbuelaMaterna";
constexpr std::size_t kGrandparentProvinces = 4;  // the last ones of kFamily
const char* const kPlace =
    "InstitucionNombre, InstitucionDiocesis, InstitucionPoblacion, InstitucionProvincia";

bool endsIn(const std::string& s, const std::string& tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

const std::map<std::string, std::string>& believable() {
  static const std::map<std::string, std::string> values{
      {"Libro", "Libro XXIII de Bautismos"},
      {"Folio", "137"},
      {"Numero", "12a"},
      {"PrimerApellidoHijo", "Fernández de Córdoba"},
      {"SegundoApellidoHijo", "Ruiz-Castañeda"},
      {"NombreHijo", "María del Carmen Inmaculada"},
      {"FechaBautismoCorta", "12/10/1987"},
      {"ParroquiaBaut", "Nuestra Señora de la Asunción"},
      {"PoblacionBaut", "Alcalá de Henares"},
      {"ProvinciaBaut", "Madrid"},
      {"Diocesis", "Madrid-Alcalá"},
      {"FechaBautismoLarga", "12 de octubre de 1987"},
      {"Ministro", "José Ignacio Gutiérrez Peñalver"},
      {"[Al niño/A la niña]", "a la niña"},
      {"[Nacido/Nacida]", "nacida"},
      {"FechaNacCorta", "03/09/1987"},
      {"FechaNacLarga", "3 de septiembre de 1987"},
      {"HoraNac", "14:35"},
      {"DireccionNac", "Hospital Universitario Príncipe de Asturias"},
      {"PoblacionNac", "Alcalá de Henares"},
      {"ProvinciaNac", "Madrid"},
      {"NombrePadre", "Francisco Javier"},
      {"PrimerApellidoPadre", "Fernández de Córdoba"},
      {"SegundoApellidoPadre", "Muñoz"},
      {"PoblacionPadre", "Priego de Córdoba"},
      {"ProvinciaPadre", "Córdoba"},
      {"NombreMadre", "Ana María"},
      {"PrimerApellidoMadre", "Ruiz-Castañeda"},
      {"SegundoApellidoMadre", "Gómez"},
      {"PoblacionMadre", "Sigüenza"},
      {"ProvinciaMadre", "Guadalajara"},
      {"DireccionPadres", "calle Mayor, 24, 3.º izquierda"},
      {"PoblacionPadres", "Alcalá de Henares"},
      {"ProvinciaPadres", "Madrid"},
      {"ParroquiaMatr", "Santa María la Mayor"},
      {"PoblacionMatr", "Alcalá de Henares"},
      {"ProvinciaMatr", "Madrid"},
      {"FechaMatrCorta", "08/06/1985"},
      {"FechaMatrLarga", "8 de junio de 1985"},
      {"AbueloPaterno", "Antonio Fernández de Córdoba Lara"},
      {"PoblacionAbueloPaterno", "Priego de Córdoba"},
      {"AbuelaPaterna", "Dolores Muñoz Serrano"},
      {"PoblacionAbuelaPaterna", "Cabra"},
      {"AbueloMaterno", "Manuel Ruiz-Castañeda Ortega"},
      {"PoblacionAbueloMaterno", "Sigüenza"},
      {"AbuelaMaterna", "Pilar Gómez Íñiguez"},
      {"PoblacionAbuelaMaterna", "Atienza"},
      {"Padrino", "Luis Alfonso Ruiz-Castañeda Gómez"},
      {"Madrina", "Mercedes Fernández de Córdoba Muñoz"},
      {"ProvinciaAbueloPaterno", "Córdoba"},
      {"ProvinciaAbuelaPaterna", "Córdoba"},
      {"ProvinciaAbueloMaterno", "Guadalajara"},
      {"ProvinciaAbuelaMaterna", "Guadalajara"},
      {"InstitucionNombre", "Nuestra Señora de la Asunción"},
      {"InstitucionTipo", "Parroquia de"},
      {"InstitucionDiocesis", "Madrid-Alcalá"},
      {"InstitucionDomicilio", "plaza de los Santos Niños, 1"},
      {"InstitucionCP", "28801"},
      {"InstitucionPoblacion", "Alcalá de Henares"},
      {"InstitucionProvincia", "Madrid"},
      {"InstitucionEncargado", "Juan Bautista Espínola Yagüe"},
      {"NotasMarginales",
       "Recibió la Confirmación el 20 de mayo de 2001 en esta parroquia. Contrajo matrimonio "
       "canónico con D. Ángel Núñez Güell el 14 de julio de 2012 en la parroquia de San Pedro."},
      {"FechaSistemaCorta", "22/11/2026"},
      {"FechaSistemaLarga", "22 de noviembre de 2026"},
      {"FechaSisteLargMeno", "22 de novembre de 2026"},
      {"FechaNacLargaMeno", "3 de setembre de 1987"},
      {"FechaBauLargaMeno", "12 d’octubre de 1987"},
      {"Sexo", "Dª."},
      {"DiocesisMatrimonio", "Madrid-Alcalá"},
      {"ProfesionPadrino", "mestre"},
      {"NaturalPadrino", "Ciutadella"},
      {"EstatPadrino", "casat"},
      {"ProfesionMadrina", "metgessa"},
      {"NaturalMadrina", "Ferreries"},
      {"EstatMadrina", "soltera"},
      {"MadreProfesion", "arquitecta"},
      {"PadreProfesion", "fuster"},
      {"EdadPadrino", "34"},
      {"ParroquiaDomicilioPadrino", "San Isidro Labrador"},
      {"EdadMadrina", "29"},
      {"ParroquiaDomicilioMadrina", "San Juan de Ávila"},
      {"PadreParroquiaBaut", "La Asunción"},
      {"PadreProvinciaParrBaut", "Córdoba"},
      {"MadreParroquiaBaut", "San Vicente"},
      {"MadreProvinciaParrBaut", "Guadalajara"},
      {"AbueloPatParroquiaBaut", "La Asunción"},
      {"AbueloPatProvinciaParrBaut", "Córdoba"},
      {"AbuelaPatParroquiaBaut", "Santo Domingo"},
      {"AbuelaPatProvinciaParrBaut", "Córdoba"},
      {"AbueloMatParroquiaBaut", "San Vicente"},
      {"AbueloMatProvinciaParrBaut", "Guadalajara"},
      {"AbuelaMatParroquiaBaut", "La Trinidad"},
      {"AbuelaMatProvinciaParrBaut", "Guadalajara"},
      {"TelefonoPadres", "918 880 000"},
      {"Año", "1987"},
      {"Letra", "F"},
      {"InstitucionParroco", "Andrés Quiñones Bermúdez"},
      {"FechaCreacionLibro", "07/01/1985"},
  };
  return values;
}

/// What the Menorca, request and slip members write otherwise.
void adapt(const std::string& operation, Values& row) {
  const auto set = [&](const char* column, const char* value) {
    for (auto& [c, v] : row)
      if (c == column) v = value;
  };
  const bool entry =
      endsIn(operation, "PartidaBautismoMenorca") || operation == "InformeLibroBautismoMenorca";
  if (entry && operation.find("Certificado") != 0) {
    set("[Al niño/A la niña]", "la filleta");
    set("[Nacido/Nacida]", "nada");
  }
  if (endsIn(operation, "Menorca")) {
    set("InstitucionTipo", "Parròquia de");
    set("InstitucionNombre", "Santa Maria");
    set("InstitucionDiocesis", "Bisbat de Menorca");
    set("InstitucionPoblacion", "Maó");
    set("InstitucionProvincia", "Illes Balears");
    if (operation.find("Certificado") == std::string::npos) {
      set("FechaBautismoLarga", "12 d’octubre de 1987");
      set("FechaNacLarga", "3 de setembre de 1987");
      set("FechaMatrLarga", "8 de juny de 1985");
      set("FechaSistemaLarga", "22 de novembre de 2026");
    }
  }
  if (operation.find("Volante") != std::string::npos) set("[Nacido/Nacida]", "hija");
  if (operation.find("Solicitud") != std::string::npos) {
    set("[Al niño/A la niña]", endsIn(operation, "Menorca") ? "La filla" : "La niña");
    set("[Nacido/Nacida]", endsIn(operation, "Menorca") ? "nada" : "nacida");
    set("InstitucionTipo", endsIn(operation, "Menorca") ? "PARRÒQUIA DE" : "PARROQUIA DE");
    set("Folio", "0");
    set("Numero", "---");
    set("NotasMarginales", "---");
  }
  if (operation == "InformePartidaBautismo")
    for (auto& [c, v] : row)
      if (c == "NotasMarginales")
        while (text::length(v) < 600) v += " .";
}

}  // namespace

std::vector<std::string> columnsOf(const std::string& operation) {
  std::vector<std::string> out;
  const bool menorca = endsIn(operation, "Menorca");
  if (operation.find("Volante") != std::string::npos) {
    add(out,
        "Libro, Folio, Numero, PrimerApellidoHijo, SegundoApellidoHijo, NombreHijo, "
        "FechaNacCorta, FechaNacLarga, FechaBautismoCorta, FechaBautismoLarga, "
        "[Al niño/A la niña], [Nacido/Nacida], NombrePadre, PrimerApellidoPadre, "
        "SegundoApellidoPadre, NombreMadre, PrimerApellidoMadre, SegundoApellidoMadre, "
        "InstitucionNombre, InstitucionTipo, InstitucionDiocesis, InstitucionDomicilio, "
        "InstitucionPoblacion, InstitucionProvincia, InstitucionCP, NotasMarginales, "
        "FechaSistemaLarga, FechaSistemaCorta, FechaSisteLargMeno, FechaBauLargaMeno, "
        "FechaNacLargaMeno");
    return out;
  }
  if (operation.find("Indice") != std::string::npos) {
    add(out,
        "InstitucionNombre, InstitucionTipo, Libro, Folio, Numero, PrimerApellidoHijo, "
        "SegundoApellidoHijo, NombreHijo, Año, Letra");
    return out;
  }
  add(out, kChild);
  add(out, kFamily);
  if (operation.rfind("InformeLibro", 0) == 0) {
    add(out, "Libro");
    add(out, kGender);
    return out;
  }
  if (operation.rfind("ImprimirDuplicadas", 0) == 0) {
    out.resize(out.size() - kGrandparentProvinces);
    add(out,
        "Libro, InstitucionParroco, InstitucionNombre, InstitucionTipo, InstitucionPoblacion, "
        "InstitucionProvincia, Año, FechaSistemaLarga, FechaCreacionLibro");
    return out;
  }
  add(out, "NotasMarginales");
  if (operation.find("Solicitud") == std::string::npos) add(out, "Libro");
  const bool plainCertificate = operation.rfind("InformeCertificadoPartida", 0) == 0;
  if (!plainCertificate) add(out, kGender);
  if (operation.rfind("InformePartida", 0) == 0) return out;
  add(out, kPlace);
  add(out, "FechaSistemaCorta");
  if (!endsIn(operation, "Santiago")) add(out, "InstitucionTipo");
  if (operation.rfind("InformeCertificado", 0) == 0) add(out, "InstitucionEncargado");
  if (operation == "InformeCertificadoLiteralPartidaBautismoMenorca")
    add(out,
        "FechaSisteLargMeno, FechaNacLargaMeno, DiocesisMatrimonio, ProfesionPadrino, "
        "NaturalPadrino, EstatPadrino, ProfesionMadrina, NaturalMadrina, EstatMadrina, "
        "MadreProfesion, PadreProfesion");
  else
    add(out, "FechaSistemaLarga");
  if (plainCertificate) add(out, "Sexo");
  if (plainCertificate && menorca)
    add(out, "FechaNacLargaMeno, FechaSisteLargMeno, FechaBauLargaMeno");
  if (endsIn(operation, "Santiago"))
    add(out,
        "EdadPadrino, ParroquiaDomicilioPadrino, EdadMadrina, ParroquiaDomicilioMadrina, "
        "PadreParroquiaBaut, PadreProfesion, PadreProvinciaParrBaut, MadreParroquiaBaut, "
        "MadreProfesion, MadreProvinciaParrBaut, AbueloPatParroquiaBaut, "
        "AbueloPatProvinciaParrBaut, AbuelaPatParroquiaBaut, AbuelaPatProvinciaParrBaut, "
        "AbueloMatParroquiaBaut, AbueloMatProvinciaParrBaut, AbuelaMatParroquiaBaut, "
        "AbuelaMatProvinciaParrBaut, TelefonoPadres");
  return out;
}

Values fullRow(const std::string& operation) {
  Values row;
  for (const std::string& column : columnsOf(operation))
    row.emplace_back(column, believable().at(column));
  adapt(operation, row);
  return row;
}

Values blankRow(const std::string& operation) {
  Values row;
  for (const std::string& column : columnsOf(operation)) row.emplace_back(column, "---");
  return row;
}

Values with(Values row, const std::string& column, const std::string& value) {
  for (auto& [c, v] : row)
    if (c == column) {
      v = value;
      return row;
    }
  row.emplace_back(column, value);
  return row;
}

void insert(store::Connection& reports, const Values& row, const std::string& table) {
  std::string columns, values;
  for (const auto& [column, value] : row) {
    columns += (columns.empty() ? "" : ",") + column;
    values += (values.empty() ? "\"" : ",\"") + text::replaceAll(value, "\"", "\"\"") + "\"";
  }
  reports.Execute("INSERT INTO " + table + " (" + columns + ") VALUES (" + values + ")");
}

}  // namespace fidaleon::paper::test
