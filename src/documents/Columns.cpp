#include "documents/Columns.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace fidaleon::documents {

namespace {

Columns::iterator require(Columns& columns, std::string_view name) {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return name == c.name; });
  if (found == columns.end()) throw std::logic_error("no such column: " + std::string(name));
  return found;
}

}  // namespace

Columns joined(std::initializer_list<Columns> groups) {
  Columns all;
  for (const Columns& group : groups) all.insert(all.end(), group.begin(), group.end());
  return all;
}

Columns without(Columns columns, std::initializer_list<std::string_view> names) {
  for (std::string_view name : names) columns.erase(require(columns, name));
  return columns;
}

Columns replacing(Columns columns, std::string_view name, const Column& by) {
  *require(columns, name) = by;
  return columns;
}

Columns insertingBehind(Columns columns, std::string_view name, const Column& added) {
  columns.insert(require(columns, name) + 1, added);
  return columns;
}

Columns ofInstitution(Columns columns) {
  for (Column& column : columns) {
    if (!std::string_view(column.name).starts_with("Institucion")) continue;
    if (column.source == Source::Stored) column.source = Source::InstitutionStored;
    if (column.source == Source::Town) column.source = Source::InstitutionTown;
    if (column.source == Source::Province) column.source = Source::InstitutionProvince;
  }
  return columns;
}

Columns indexLine(const char* libro, const Columns& persona) {
  return joined({{{"InstitucionNombre", Source::Stored, "InstitucionNombre"},
                  {"InstitucionTipo", Source::Stored, "InstitucionTipo"},
                  {"Libro", Source::Stored, libro},
                  {"Folio", Source::Stored, "Folio"},
                  {"Numero", Source::Stored, "Numero"}},
                 persona,
                 {{"Año", Source::Year, "FechaCreacion"},
                  {"Letra", Source::Initial, persona.front().field}}});
}

}  // namespace fidaleon::documents
