// Institutions, places and the last values used.

#include "store/schema/Parish.h"

namespace fidaleon::store {

namespace {

/// In the order of the official code of the National Statistics Institute, from 1.
constexpr const char* kProvinces[] = {
    "Álava",         "Albacete",
    "Alicante",      "Almería",
    "Ávila",         "Badajoz",
    "Illes Balears", "Barcelona",
    "Burgos",        "Cáceres",
    "Cádiz",         "Castellón",
    "Ciudad Real",   "Córdoba",
    "A Coruña",      "Cuenca",
    "Girona",        "Granada",
    "Guadalajara",   "Gipuzkoa",
    "Huelva",        "Huesca",
    "Jaén",          "León",
    "Lleida",        "La Rioja",
    "Lugo",          "Madrid",
    "Málaga",        "Murcia",
    "Navarra",       "Ourense",
    "Asturias",      "Palencia",
    "Las Palmas",    "Pontevedra",
    "Salamanca",     "Santa Cruz de Tenerife",
    "Cantabria",     "Segovia",
    "Sevilla",       "Soria",
    "Tarragona",     "Teruel",
    "Toledo",        "Valencia",
    "Valladolid",    "Bizkaia",
    "Zamora",        "Zaragoza",
    "Ceuta",         "Melilla",
};

Table provinces() {
  Table table("Provincia");
  table.counter("IDProvincia").texts({"Nombre"}).longs({"Codigo_Oficial"}).index({"Nombre"});
  std::int64_t code = 0;
  for (const char* name : kProvinces) {
    ++code;
    table.row({Value(code), Value(std::string(name)), Value(code)});
  }
  return table;
}

Table institutions() {
  Table table("Institucion");
  table.counter("IDInstitucion")
      .texts({"ResponsableNombre", "ResponsablePrimerApellido", "ResponsableSegundoApellido",
              "ResponsableTelefono", "ResponsableCargo", "ResponsableNIF", "Parroco",
              "EncargadoArchivo", "Nombre", "InstitucionNombre", "InstitucionTipo", "Domicilio",
              "CIF"})
      .refers("Municipio", {"CodMunicipio"})
      .texts({"CP", "Telefono"})
      .longs({"DiaCobro"})
      .texts(
          {"Diocesis", "Vicaria", "Delegacion", "CuentaCorreo", "PasswordCorreo", "RegimenFiscal"})
      .longs({"CodAdvocacion"})
      .texts({"CodigoIdentificativo", "OperacionCorreo", "CommError", "Sufijo", "Arciprestazgo",
              "Ayuntamiento", "InstitucionEmail"})
      .index({"Nombre"});
  return table;
}

}  // namespace

void addCatalogues(std::vector<Table>& tables) {
  tables.push_back(institutions());
  tables.push_back(Table("Institucion_Encargado")
                       .counter("IDEncargado")
                       .belongsTo("Institucion", "CodInstitucion")
                       .texts({"Nombre"})
                       .index({"CodInstitucion"}));
  tables.push_back(Table("Ultimos")
                       .belongsTo("Institucion", "IDInstitucion")
                       .texts({"Encargado"})
                       .key({"IDInstitucion"}, false));
  tables.push_back(provinces());
  tables.push_back(Table("Municipio")
                       .counter("IDMunicipio")
                       .texts({"Nombre"})
                       .refers("Provincia", {"CodProvincia"})
                       .index({"CodProvincia", "Nombre"})
                       .index({"Nombre"}));
  // One row. The edition is also in a note beside the database, which gets lost. A sample is only
  // there to learn on: its people are invented.
  tables.push_back(Table("Instalacion", 2).texts({"Edicion"}).from(3).yesNos({"Muestra"}));
}

}  // namespace fidaleon::store
