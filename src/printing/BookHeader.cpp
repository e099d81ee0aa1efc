#include "printing/BookHeader.h"

#include <algorithm>
#include <array>

#include "core/statements/Sentencia.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

bool isBlank(const std::string& text) {
  return text::trim(text).empty() || text == "---";
}

// "Madrid" is the diocese of Madrid; "Archidiócesis de Toledo" and "Bisbat de Menorca" say it.
std::string dioceseName(const std::string& diocese, bool catalan) {
  if (isBlank(diocese)) return {};
  static constexpr std::array<const char*, 6> WORDS{"dioces",   "archidioces", "arxidioces",
                                                    "obispado", "arzobispado", "bisbat"};
  const std::string key = text::searchKey(diocese);
  const bool complete = std::any_of(WORDS.begin(), WORDS.end(),
                                    [&](const char* word) { return key.starts_with(word); });
  return complete ? diocese : (catalan ? "Diòcesi de " : "Diócesis de ") + diocese;
}

std::string institutionName(const store::Recordset& row) {
  const std::string name = row.text("InstitucionNombre");
  if (isBlank(name)) return row.text("Nombre");
  const std::string type = row.text("InstitucionTipo");
  return isBlank(type) ? name : type + " " + name;
}

std::string townName(store::Connection& parish, const std::string& key) {
  const auto town = parish.Execute(
      "SELECT Municipio.Nombre, Provincia.Nombre AS Provincia FROM Municipio, Provincia WHERE "
      "Provincia.IDProvincia=Municipio.CodProvincia AND Municipio.IDMunicipio=" +
      key);
  if (town.EOF_() || isBlank(town.text("Nombre"))) return {};
  const std::string name = town.text("Nombre");
  const std::string province = town.text("Provincia");
  return isBlank(province) || province == name ? name : name + " (" + province + ")";
}

}  // namespace

paper::GivenValues bookHeader(store::Connection& parish, const Sacramento& sacrament,
                              std::int32_t book, bool catalan) {
  const auto row = parish.Execute(
      sentencia(sacrament,
                "SELECT Institucion.Nombre, Institucion.InstitucionNombre, "
                "Institucion.InstitucionTipo, Institucion.Diocesis, Institucion.CodMunicipio FROM "
                "Institucion, {Libros} WHERE Institucion.IDInstitucion={Libros}.CodInstitucion AND "
                "{Libros}.{IDLibro}=") +
      std::to_string(book));
  if (row.EOF_()) return {};
  const auto text = [](const std::string& s) { return QString::fromStdString(s); };
  return {{"Institucion", text(institutionName(row))},
          {"Diocesis", text(dioceseName(row.text("Diocesis"), catalan))},
          {"Poblacion", text(townName(parish, std::to_string(row.integer("CodMunicipio"))))}};
}

}  // namespace fidaleon::app
