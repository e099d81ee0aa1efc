#include "support/Catalogos.h"

#include <functional>

#include "store/schema/Schema.h"
#include "text/Utf8.h"

namespace fidaleon::support {

namespace {

using IsReference = std::function<bool(const std::string& table, const std::string& column)>;

/// Whether a column that refers to the catalogue holds the key, in any table of the database.
bool inUse(FDAPI::Conexion& connection, std::int32_t id, const IsReference& refers) {
  for (const store::Table& table : connection.schema().tables())
    for (const store::Column& column : table.columns())
      if (store::isWhole(column.type) && refers(table.name(), text::lower(column.name)) &&
          !connection
               .Execute("SELECT TOP 1 [" + column.name + "] FROM [" + table.name() + "] WHERE [" +
                        column.name + "]=" + std::to_string(id))
               .EOF_())
        return true;
  return false;
}

bool refersToTown(const std::string&, const std::string& column) {
  return column.starts_with("codmunicipio") || column.starts_with("municipioinscrito");
}

bool refersToProvince(const std::string&, const std::string& column) {
  return column.starts_with("codprovincia");
}

// Its keepers and its last values go with it.
bool refersToInstitution(const std::string& table, const std::string& column) {
  return !text::equalsNoCase(table, "Institucion_Encargado") &&
         (column.starts_with("codinstitucion") || column == "institucionsolicitud");
}

struct Catalogue {
  const char* table;
  const char* key;
  const char* procedure;
  const char* used;
  const char* question;
  IsReference refers;
};

bool eliminar(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui, FDAPI::Conexion& connection,
              std::int32_t id, const Catalogue& what,
              const std::function<void()>& dependents = {}) {
  try {
    if (inUse(connection, id, what.refers)) {
      forms::warn(ui, what.used);
      return false;
    }
    if (!forms::ask(ui, what.question)) return false;
    connection.BeginTrans();
    try {
      if (dependents) dependents();
      connection.Execute(std::string("DELETE * FROM ") + what.table + " WHERE " + what.key + "=" +
                         std::to_string(id));
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
  const Catalogue what{"Institucion",
                       "IDInstitucion",
                       "eliminarInstitucion",
                       "¡Esta institución no se puede eliminar, tiene libros u otros datos "
                       "asociados!",
                       "¿Seguro que quiere eliminar la institución?",
                       refersToInstitution};
  return eliminar(fidaleon, ui, conexion, id, what, [&] {
    conexion.Execute("DELETE * FROM Institucion_Encargado WHERE CodInstitucion=" +
                     std::to_string(id));
    conexion.Execute("DELETE * FROM Ultimos WHERE IDInstitucion=" + std::to_string(id));
  });
}

bool eliminarProvincia(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                       FDAPI::Conexion& conexion, std::int32_t id) {
  const Catalogue what{"Provincia",
                       "IDProvincia",
                       "eliminarProvincia",
                       "¡Esta provincia no se puede eliminar, tiene municipios asociados!",
                       "¿Seguro que quiere eliminar la provincia?",
                       refersToProvince};
  return eliminar(fidaleon, ui, conexion, id, what);
}

bool eliminarMunicipio(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui,
                       FDAPI::Conexion& conexion, std::int32_t id) {
  const Catalogue what{"Municipio",
                       "IDMunicipio",
                       "eliminarMunicipio",
                       "¡Este municipio no se puede eliminar, se usa en partidas o en otros "
                       "datos!",
                       "¿Seguro que quiere eliminar el municipio?",
                       refersToTown};
  return eliminar(fidaleon, ui, conexion, id, what);
}

bool eliminarTarea(FDAPI::cFidaleon& fidaleon, forms::UserInterface& ui, FDAPI::Conexion& conexion,
                   std::int32_t id) {
  const Catalogue what{"Tareas",
                       "IDTarea",
                       "eliminarTarea",
                       "",
                       "¿Seguro que quiere eliminar la tarea?",
                       [](const std::string&, const std::string&) { return false; }};
  return eliminar(fidaleon, ui, conexion, id, what);
}

}  // namespace fidaleon::support
