#include "search/Source.h"

#include <algorithm>

#include "core/statements/Sentencia.h"

namespace fidaleon::search {
namespace {

constexpr std::int64_t READ_AT_ONCE = 1024;  // keys

/// Name and surnames, kept apart in three columns of a table.
void addName(std::vector<Column>& columns, Who who, const char* name, const char* first,
             const char* second) {
  columns.push_back({name, of(who, Part::Name)});
  columns.push_back({first, of(who, Part::First)});
  columns.push_back({second, of(who, Part::Second)});
}

Source baptism() {
  Source s{Register::Baptism, &BAUTISMO, "Bautismo", "IDBautismo", {}, {}, {}, {}, {}};
  s.from =
      "((Bautismo INNER JOIN Bautismo_Hijo ON Bautismo_Hijo.CodBautismo=Bautismo.IDBautismo) "
      "LEFT JOIN Bautismo_Padres ON Bautismo_Padres.IDPadres=Bautismo.CodPadres) "
      "LEFT JOIN Bautismo_Madres ON Bautismo_Madres.IDMadres=Bautismo.CodMadres";
  addName(s.columns, Who::Self, "Bautismo_Hijo.Nombre", "Bautismo_Hijo.PrimerApellido",
          "Bautismo_Hijo.SegundoApellido");
  addName(s.columns, Who::Father, "Bautismo_Padres.Nombre", "Bautismo_Padres.PrimerApellido",
          "Bautismo_Padres.SegundoApellido");
  addName(s.columns, Who::Mother, "Bautismo_Madres.Nombre", "Bautismo_Madres.PrimerApellido",
          "Bautismo_Madres.SegundoApellido");
  s.columns.insert(s.columns.end(), {{"Bautismo.Padrino", of(Who::Godfather, Part::Whole)},
                                     {"Bautismo.Madrina", of(Who::Godmother, Part::Whole)},
                                     {"Bautismo.Parroquia", Field::Place},
                                     {"Bautismo.CodMunicipio", Field::Town},
                                     {"Bautismo_Hijo.CodMunicipioNac", Field::Town},
                                     {"Bautismo.FechaBautismo", Field::Day},
                                     {"Bautismo_Hijo.FechaNac", Field::Born}});
  s.fromWhole =
      "(((Bautismo INNER JOIN Bautismo_Hijo ON Bautismo_Hijo.CodBautismo=Bautismo.IDBautismo) "
      "LEFT JOIN Bautismo_Padres ON Bautismo_Padres.IDPadres=Bautismo.CodPadres) "
      "LEFT JOIN Bautismo_Madres ON Bautismo_Madres.IDMadres=Bautismo.CodMadres) LEFT JOIN "
      "Bautismo_Matrimonio ON Bautismo_Matrimonio.IDMatrimonio=Bautismo.CodMatrimonio";
  s.further = {{"Bautismo_Matrimonio.FechaMatr", Field::ParentsWedding}};
  s.relatives = {{"Bautismo_Hijo", nullptr},
                 {"Bautismo_Padres", "SELECT IDBautismo FROM Bautismo WHERE CodPadres="},
                 {"Bautismo_Madres", "SELECT IDBautismo FROM Bautismo WHERE CodMadres="}};
  return s;
}

Source confirmation() {
  Source s{
      Register::Confirmation, &CONFIRMACION, "Confirmacion", "IDConfirmacion", {}, {}, {}, {}, {}};
  s.from =
      "Confirmacion INNER JOIN Confirmacion_Datos ON "
      "Confirmacion_Datos.CodConfirmacion=Confirmacion.IDConfirmacion";
  addName(s.columns, Who::Self, "Confirmacion.Nombre", "Confirmacion.PrimerApellido",
          "Confirmacion.SegundoApellido");
  s.columns.insert(s.columns.end(),
                   {{"Confirmacion.NombrePadre", of(Who::Father, Part::Whole)},
                    {"Confirmacion.NombreMadre", of(Who::Mother, Part::Whole)},
                    {"Confirmacion_Datos.Padrino", of(Who::Godfather, Part::Whole)},
                    {"Confirmacion.Parroquia", Field::Place},
                    {"Confirmacion.CodMunicipioParr", Field::Town},
                    {"Confirmacion.CodMunicipioNac", Field::Town},
                    {"Confirmacion_Datos.FechaConfirmacion", Field::Day},
                    {"Confirmacion.FechaNac", Field::Born}});
  s.fromWhole =
      "(Confirmacion INNER JOIN Confirmacion_Datos ON "
      "Confirmacion_Datos.CodConfirmacion=Confirmacion.IDConfirmacion) LEFT JOIN "
      "Confirmacion_Bautismo ON "
      "Confirmacion_Bautismo.CodConfirmacion=Confirmacion.IDConfirmacion";
  s.further = {{"Confirmacion_Bautismo.FechaBaut", Field::Baptised},
               {"Confirmacion_Bautismo.LibroBaut", Field::BaptismBook},
               {"Confirmacion_Bautismo.FolioBaut", Field::BaptismFolio},
               {"Confirmacion_Bautismo.NumeroBaut", Field::BaptismNumber}};
  s.relatives = {{"Confirmacion_Datos", nullptr}};
  return s;
}

Source marriage() {
  Source s{Register::Marriage, &MATRIMONIO, "Matrimonio", "IDMatrimonio", {}, {}, {}, {}, {}};
  s.from =
      "((((Matrimonio INNER JOIN Matrimonio_Novios ON "
      "Matrimonio_Novios.IDNovios=Matrimonio.CodNovios) INNER JOIN Matrimonio_Novias ON "
      "Matrimonio_Novias.IDNovias=Matrimonio.CodNovias) INNER JOIN Matrimonio_Compromiso ON "
      "Matrimonio_Compromiso.CodMatrimonio=Matrimonio.IDMatrimonio) LEFT JOIN "
      "Matrimonio_Novios_RegCivil ON "
      "Matrimonio_Novios_RegCivil.CodNovios=Matrimonio.CodNovios) LEFT JOIN "
      "Matrimonio_Novias_RegCivil ON Matrimonio_Novias_RegCivil.CodNovias=Matrimonio.CodNovias";
  addName(s.columns, Who::Self, "Matrimonio_Novios.Nombre", "Matrimonio_Novios.PrimerApellido",
          "Matrimonio_Novios.SegundoApellido");
  addName(s.columns, Who::Bride, "Matrimonio_Novias.Nombre", "Matrimonio_Novias.PrimerApellido",
          "Matrimonio_Novias.SegundoApellido");
  s.columns.insert(s.columns.end(),
                   {{"Matrimonio_Novios_RegCivil.NombrePadre", of(Who::Father, Part::Whole)},
                    {"Matrimonio_Novios_RegCivil.NombreMadre", of(Who::Mother, Part::Whole)},
                    {"Matrimonio_Novias_RegCivil.NombrePadre", of(Who::BridesFather, Part::Whole)},
                    {"Matrimonio_Novias_RegCivil.NombreMadre", of(Who::BridesMother, Part::Whole)},
                    {"Matrimonio_Compromiso.Padrino", of(Who::Godfather, Part::Whole)},
                    {"Matrimonio_Compromiso.Madrina", of(Who::Godmother, Part::Whole)},
                    {"Matrimonio.Parroquia", Field::Place},
                    {"Matrimonio.CodMunicipio", Field::Town},
                    {"Matrimonio_Novios.CodMunicipioNac", Field::Town},
                    {"Matrimonio_Novias.CodMunicipioNac", Field::Town},
                    {"Matrimonio_Compromiso.FechaMatrimonio", Field::Day}});
  s.fromWhole =
      "((((((Matrimonio INNER JOIN Matrimonio_Novios ON "
      "Matrimonio_Novios.IDNovios=Matrimonio.CodNovios) INNER JOIN Matrimonio_Novias ON "
      "Matrimonio_Novias.IDNovias=Matrimonio.CodNovias) INNER JOIN Matrimonio_Compromiso ON "
      "Matrimonio_Compromiso.CodMatrimonio=Matrimonio.IDMatrimonio) LEFT JOIN "
      "Matrimonio_Novios_RegCivil ON "
      "Matrimonio_Novios_RegCivil.CodNovios=Matrimonio.CodNovios) LEFT JOIN "
      "Matrimonio_Novias_RegCivil ON Matrimonio_Novias_RegCivil.CodNovias=Matrimonio.CodNovias) "
      "LEFT JOIN Matrimonio_Novios_Bautismo ON "
      "Matrimonio_Novios_Bautismo.CodNovios=Matrimonio.CodNovios) LEFT JOIN "
      "Matrimonio_Novias_Bautismo ON Matrimonio_Novias_Bautismo.CodNovias=Matrimonio.CodNovias";
  s.further = {{"Matrimonio_Novios.FechaNac", Field::Born},
               {"Matrimonio_Novios_Bautismo.FechaBaut", Field::Baptised},
               {"Matrimonio_Novios_Bautismo.LibroBaut", Field::BaptismBook},
               {"Matrimonio_Novios_Bautismo.FolioBaut", Field::BaptismFolio},
               {"Matrimonio_Novios_Bautismo.NumeroBaut", Field::BaptismNumber},
               {"Matrimonio_Novias.FechaNac", Field::BrideBorn},
               {"Matrimonio_Novias_Bautismo.FechaBaut", Field::BrideBaptised},
               {"Matrimonio_Novias_Bautismo.LibroBaut", Field::BrideBaptismBook},
               {"Matrimonio_Novias_Bautismo.FolioBaut", Field::BrideBaptismFolio},
               {"Matrimonio_Novias_Bautismo.NumeroBaut", Field::BrideBaptismNumber}};
  s.relatives = {{"Matrimonio_Novios", "SELECT IDMatrimonio FROM Matrimonio WHERE CodNovios="},
                 {"Matrimonio_Novias", "SELECT IDMatrimonio FROM Matrimonio WHERE CodNovias="},
                 {"Matrimonio_Compromiso", nullptr},
                 {"Matrimonio_Novios_RegCivil", nullptr},
                 {"Matrimonio_Novias_RegCivil", nullptr}};
  return s;
}

Source death() {
  Source s{Register::Death, &DEFUNCION, "Defuncion", "IDDifunto", {}, {}, {}, {}, {}};
  s.from = "Defuncion INNER JOIN Defuncion_Datos ON Defuncion_Datos.CodDifunto=Defuncion.IDDifunto";
  addName(s.columns, Who::Self, "Defuncion.Nombre", "Defuncion.PrimerApellido",
          "Defuncion.SegundoApellido");
  s.columns.insert(s.columns.end(), {{"Defuncion.NombrePadre", of(Who::Father, Part::Whole)},
                                     {"Defuncion.NombreMadre", of(Who::Mother, Part::Whole)},
                                     {"Defuncion.Consorte", of(Who::Spouse, Part::Whole)},
                                     {"Defuncion.Parroquia", Field::Place},
                                     {"Defuncion.CodMunicipioParr", Field::Town},
                                     {"Defuncion.CodMunicipioNaturalDe", Field::Town},
                                     {"Defuncion_Datos.FechaDefuncion", Field::Day}});
  s.fromWhole = s.from;
  s.further = {{"Defuncion_Datos.Edad", Field::Age}};
  s.relatives = {{"Defuncion_Datos", nullptr}};
  return s;
}

void addPlaceInBook(Source& s) {
  static const std::string COLUMNS[][5] = {
      {"Bautismo.CodLibro", "Bautismo.InstitucionSolicitud", "Bautismo.Folio", "Bautismo.Numero",
       "Bautismo.Anulada"},
      {"Confirmacion.CodLibro", "Confirmacion.InstitucionSolicitud", "Confirmacion.Folio",
       "Confirmacion.Numero", "Confirmacion.Anulada"},
      {"Matrimonio.CodLibro", "Matrimonio.InstitucionSolicitud", "Matrimonio.Folio",
       "Matrimonio.Numero", "Matrimonio.Anulada"},
      {"Defuncion.CodLibro", "Defuncion.InstitucionSolicitud", "Defuncion.Folio",
       "Defuncion.Numero", "Defuncion.Anulada"}};
  constexpr Field FIELDS[] = {Field::Book, Field::Institution, Field::Folio, Field::Number,
                              Field::Annulled};
  for (int i = 0; i < 5; ++i)
    s.columns.push_back({COLUMNS[s.sacrament->byte][i].c_str(), FIELDS[i]});
}

Source census() {
  Source s{Register::Census, nullptr, "Padron", "IDPadron", {}, {}, {}, {}, {}};
  s.from = "Padron LEFT JOIN Padron_Nacimiento ON Padron_Nacimiento.CodPadron=Padron.IDPadron";
  addName(s.columns, Who::Self, "Padron.Nombre", "Padron.PrimerApellido", "Padron.SegundoApellido");
  s.columns.insert(
      s.columns.end(),
      {{"Padron_Nacimiento.NombrePadre", of(Who::Father, Part::Whole)},
       {"Padron_Nacimiento.NombreMadre", of(Who::Mother, Part::Whole)},
       {"Padron.DNI", Field::Place},
       {"Padron.CodMunicipio", Field::Town},
       {"Padron_Nacimiento.CodMunicipioNac", Field::Town},
       {"Padron.CodInstitucionEmpadronado", Field::Institution},
       {"Padron_Nacimiento.FechaNacimiento", Field::Born},
       {"(SELECT COUNT(*) FROM Padron_TipoPersona WHERE "
        "Padron_TipoPersona.CodPadron=Padron.IDPadron AND Padron_TipoPersona.CodTipoPersona=2)",
        Field::Person},
       {"(SELECT COUNT(*) FROM Padron_TipoPersona WHERE "
        "Padron_TipoPersona.CodPadron=Padron.IDPadron AND Padron_TipoPersona.CodTipoPersona=3)",
        Field::Collaborator}});
  s.fromWhole =
      "(Padron LEFT JOIN Padron_Nacimiento ON Padron_Nacimiento.CodPadron=Padron.IDPadron) LEFT "
      "JOIN Padron_Bautismo ON Padron_Bautismo.CodPadron=Padron.IDPadron";
  s.further = {{"Padron_Bautismo.FechaBautizo", Field::Baptised}};
  s.relatives = {{"Padron_Nacimiento", nullptr}, {"Padron_TipoPersona", nullptr}};
  return s;
}

std::vector<Source> makeSources() {
  std::vector<Source> all{baptism(), confirmation(), marriage(), death(), census()};
  for (Source& s : all)
    if (s.sacrament) addPlaceInBook(s);
  return all;
}

/// Of all texts together, each with its end.
class Digest {
 public:
  void add(std::string_view text) {
    for (const char c : text) one(static_cast<unsigned char>(c));
    one(0);
  }
  std::uint64_t value() const { return value_ & 0x7fffffffffffffffULL; }

 private:
  void one(unsigned char byte) { value_ = (value_ ^ byte) * 1099511628211ULL; }
  std::uint64_t value_ = 14695981039346656037ULL;
};

void read(store::Connection& connection, const Source& source, const std::string& condition,
          Extent extent, const TakeEntry& take) {
  const bool whole = extent == Extent::Whole;
  std::vector<Column> columns = source.columns;
  if (whole) columns.insert(columns.end(), source.further.begin(), source.further.end());
  const std::string key = std::string(source.table) + "." + source.key;
  std::string sql = "SELECT " + key;
  for (const Column& column : columns) sql += std::string(", ") + column.name;
  sql += std::string(" FROM ") + (whole ? source.fromWhole : source.from) + " WHERE " + key +
         condition + " ORDER BY " + key;
  Entry entry;
  entry.in = source.in;
  entry.texts.resize(columns.size());
  for (auto rows = connection.Execute(sql); !rows.EOF_(); rows.MoveNext()) {
    entry.key = static_cast<std::int32_t>(rows.integer(0));
    entry.texts.resize(columns.size());
    Digest digest;
    for (std::size_t c = 0; c < columns.size(); ++c) {
      entry.texts[c] = {columns[c].is, rows.text(static_cast<int>(c) + 1)};
      if (c < source.columns.size()) digest.add(entry.texts[c].second);
    }
    entry.digest = digest.value();
    take(entry);
  }
}

}  // namespace

std::span<const Source> sources() {
  static const std::vector<Source> all = makeSources();
  return all;
}

const Source& sourceOf(Register in) {
  return sources()[static_cast<std::size_t>(in)];
}

void readRange(store::Connection& connection, const Source& source, std::int64_t after,
               std::int64_t upTo, const TakeEntry& take) {
  // In short statements: where reading keeps others from writing, they have their turn.
  const std::string key = std::string(source.table) + "." + source.key;
  for (std::int64_t from = after; from < upTo; from += READ_AT_ONCE)
    read(connection, source,
         ">" + std::to_string(from) + " AND " + key +
             "<=" + std::to_string(std::min(from + READ_AT_ONCE, upTo)),
         Extent::Searched, take);
}

void readKeys(store::Connection& connection, const Source& source,
              const std::vector<std::int32_t>& keys, Extent extent, const TakeEntry& take) {
  if (keys.empty()) return;
  // Of few lengths: the store keeps each statement that it has read, by its shape.
  std::size_t length = 8;
  while (length < keys.size()) length *= 2;
  std::string list;
  for (std::size_t i = 0; i < length; ++i)
    list += (i == 0 ? "" : ",") + std::to_string(keys[std::min(i, keys.size() - 1)]);
  read(connection, source, " IN (" + list + ")", extent, take);
}

std::int64_t highestKey(store::Connection& connection, const Source& source) {
  return connection
      .Execute(std::string("SELECT MAX(") + source.key + ") AS Mayor FROM " + source.table)
      .integer("Mayor");
}

}  // namespace fidaleon::search
