#include "parish/UsualKeeper.h"

#include "core/statements/Citas.h"

namespace fidaleon::app {
namespace {

store::Recordset lastOf(store::Connection& parish, const std::string& institution) {
  return parish.Execute("SELECT * FROM Ultimos WHERE IDInstitucion=" + institution);
}

}  // namespace

std::vector<InstitutionKeepers> keepersOf(store::Connection& parish) {
  std::vector<InstitutionKeepers> all;
  store::Recordset rows = parish.Execute(
      "SELECT Institucion.IDInstitucion, Institucion.Nombre AS Institucion, "
      "Institucion_Encargado.Nombre AS Encargado FROM Institucion, Institucion_Encargado WHERE "
      "Institucion_Encargado.CodInstitucion=Institucion.IDInstitucion ORDER BY "
      "Institucion.IDInstitucion, Institucion_Encargado.Nombre");
  for (; !rows.EOF_(); rows.MoveNext()) {
    const auto id = static_cast<std::int32_t>(rows.integer("IDInstitucion"));
    if (all.empty() || all.back().institution != id)
      all.push_back({id, rows.text("Institucion"), {}, {}});
    all.back().keepers.push_back(rows.text("Encargado"));
  }
  for (InstitutionKeepers& one : all) {
    const store::Recordset last = lastOf(parish, std::to_string(one.institution));
    if (!last.EOF_()) one.usual = last.text("Encargado");
  }
  return all;
}

void setUsualKeeper(store::Connection& parish, std::int32_t institution,
                    const std::string& keeper) {
  const std::string id = std::to_string(institution);
  if (lastOf(parish, id).EOF_())
    parish.Execute("INSERT INTO Ultimos (IDInstitucion, Encargado) VALUES (" + id + ", " +
                   entreComillas(keeper) + ")");
  else
    parish.Execute("UPDATE Ultimos SET Encargado=" + entreComillas(keeper) +
                   " WHERE IDInstitucion=" + id);
}

}  // namespace fidaleon::app
