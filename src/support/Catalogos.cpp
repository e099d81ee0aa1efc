#include "support/Catalogos.h"

#include <set>

#include "core/statements/Citas.h"
#include "store/schema/Schema.h"
#include "text/Utf8.h"

namespace fidaleon::support {

namespace {

struct Catalogue {
  const char* table;
  const char* key;
  const char* procedure;
  const char* used;  // empty when nothing can refer to it
  const char* question;
};

/// Calls `visit` for every column of the database that refers to that table.
template <class Visit>
void forEachReferenceTo(FDAPI::Conexion& connection, const char* catalogue, const Visit& visit) {
  for (const store::Table& table : connection.schema().tables())
    for (const store::Column& column : table.columns())
      if (text::equalsNoCase(column.refersTo, catalogue)) visit(table, column);
}

std::string whereHolds(const store::Table& table, const store::Column& column, std::int32_t id) {
  const std::string key = std::to_string(id);
  return " FROM [" + table.name() + "] WHERE [" + column.name +
         "]=" + (store::isText(column.type) ? entreComillas(key) : key);
}

/// What a table holds, for the user.
std::string contents(const std::string& table) {
  static constexpr std::pair<const char*, const char*> BY_BEGINNING[] = {
      {"Libro", "libros"},
      {"Bautismo", "bautismos"},
      {"Confirmacion", "confirmaciones"},
      {"Matrimonio", "matrimonios"},
      {"Defuncion", "defunciones"},
      {"Padron", "padrón"},
      {"Actividad", "actividades"},
      {"Municipio", "municipios"},
      {"Institucion", "instituciones"}};
  for (const auto& [beginning, name] : BY_BEGINNING)
    if (table.starts_with(beginning)) return name;
  return table;
}

/// What names the row, with commas between; empty when nothing does.
std::string usedIn(FDAPI::Conexion& connection, const Catalogue& what, std::int32_t id) {
  std::set<std::string> places;
  forEachReferenceTo(connection, what.table, [&](const auto& table, const auto& column) {
    if (!column.belongs &&
        !connection.Execute("SELECT TOP 1 [" + column.name + "]" + whereHolds(table, column, id))
             .EOF_())
      places.insert(contents(table.name()));
  });
  std::string list;
  for (const std::string& place : places) list += (list.empty() ? "" : ", ") + place;
  return list;
}

std::string nameOf(FDAPI::Conexion& connection, const Catalogue& what, std::int32_t id) {
  const store::Recordset row = connection.Execute(std::string("SELECT Nombre FROM ") + what.table +
                                                  " WHERE " + what.key + "=" + std::to_string(id));
  return row.EOF_() ? std::string() : row.text("Nombre");
}

void removeWithItsParts(FDAPI::Conexion& connection, const Catalogue& what, std::int32_t id) {
  forEachReferenceTo(connection, what.table, [&](const auto& table, const auto& column) {
    if (column.belongs) connection.Execute("DELETE *" + whereHolds(table, column, id));
  });
  connection.Execute(std::string("DELETE * FROM ") + what.table + " WHERE " + what.key + "=" +
                     std::to_string(id));
}

bool eliminar(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui, FDAPI::Conexion& connection,
              std::int32_t id, const Catalogue& what) {
  try {
    const std::string name = nameOf(connection, what, id);
    const std::string places = usedIn(connection, what, id);
    if (!places.empty()) {
      forms::warn(ui, what.used, forms::MsgIcon::Exclamation,
                  name + "\nAparece en: " + places + ".");
      return false;
    }
    if (!forms::ask(ui, what.question, {}, forms::Stake::Loss, name)) return false;
    connection.BeginTrans();
    try {
      removeWithItsParts(connection, what, id);
      connection.CommitTrans();
    } catch (const std::exception&) {
      connection.RollbackTrans();
      throw;
    }
    return true;
  } catch (const std::exception&) {
    fidaleon.vererror("FidaleonSoporte", "Catalogos", what.procedure);
    return false;
  }
}

}  // namespace

bool eliminarInstitucion(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                         FDAPI::Conexion& conexion, std::int32_t id) {
  const Catalogue what{"Institucion", "IDInstitucion", "eliminarInstitucion",
                       "¡Esta institución no se puede eliminar, tiene libros u otros datos "
                       "asociados!",
                       "¿Seguro que quiere eliminar la institución?"};
  return eliminar(fidaleon, ui, conexion, id, what);
}

bool eliminarProvincia(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                       FDAPI::Conexion& conexion, std::int32_t id) {
  const Catalogue what{"Provincia", "IDProvincia", "eliminarProvincia",
                       "¡Esta provincia no se puede eliminar, tiene municipios asociados!",
                       "¿Seguro que quiere eliminar la provincia?"};
  return eliminar(fidaleon, ui, conexion, id, what);
}

bool eliminarMunicipio(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                       FDAPI::Conexion& conexion, std::int32_t id) {
  const Catalogue what{"Municipio", "IDMunicipio", "eliminarMunicipio",
                       "¡Este municipio no se puede eliminar, se usa en partidas o en otros "
                       "datos!",
                       "¿Seguro que quiere eliminar el municipio?"};
  return eliminar(fidaleon, ui, conexion, id, what);
}

bool eliminarTarea(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui, FDAPI::Conexion& conexion,
                   std::int32_t id) {
  const Catalogue what{"Tareas", "IDTarea", "eliminarTarea", "",
                       "¿Seguro que quiere eliminar la tarea?"};
  return eliminar(fidaleon, ui, conexion, id, what);
}

}  // namespace fidaleon::support
