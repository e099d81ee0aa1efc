#include "support/Catalogos.h"

#include "core/contract/EnSacramento.h"
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

/// Calls `visit` for every column of the database that refers to that table, until it says yes.
template <class Visit>
bool anyReferenceTo(FDAPI::Conexion& connection, const char* catalogue, const Visit& visit) {
  for (const store::Table& table : connection.schema().tables())
    for (const store::Column& column : table.columns())
      if (text::equalsNoCase(column.refersTo, catalogue) && visit(table, column)) return true;
  return false;
}

std::string whereHolds(const store::Table& table, const store::Column& column, std::int32_t id) {
  const std::string key = std::to_string(id);
  return " FROM [" + table.name() + "] WHERE [" + column.name +
         "]=" + (store::isText(column.type) ? entreComillas(key) : key);
}

bool inUse(FDAPI::Conexion& connection, const Catalogue& what, std::int32_t id) {
  return anyReferenceTo(connection, what.table, [&](const auto& table, const auto& column) {
    return !column.belongs &&
           !connection.Execute("SELECT TOP 1 [" + column.name + "]" + whereHolds(table, column, id))
                .EOF_();
  });
}

void removeWithItsParts(FDAPI::Conexion& connection, const Catalogue& what, std::int32_t id) {
  anyReferenceTo(connection, what.table, [&](const auto& table, const auto& column) {
    if (column.belongs) connection.Execute("DELETE *" + whereHolds(table, column, id));
    return false;
  });
  connection.Execute(std::string("DELETE * FROM ") + what.table + " WHERE " + what.key + "=" +
                     std::to_string(id));
}

bool eliminar(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui, FDAPI::Conexion& connection,
              std::int32_t id, const Catalogue& what) {
  try {
    if (inUse(connection, what, id)) {
      forms::warn(ui, what.used);
      return false;
    }
    if (!forms::ask(ui, what.question)) return false;
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
