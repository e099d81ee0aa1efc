#include "support/Listas.h"

#include "text/Numbers.h"

namespace fidaleon::support {

namespace {

// What cannot be read leaves the list, and what is chosen in it, as they are.
void fill(forms::ListControl& list, FDAPI::Conexion& connection, const std::string& sql,
          bool emptyLine) {
  store::Recordset rs = connection.Execute(sql);
  list.clear();
  if (emptyLine) list.addItem("", 0);
  for (; !rs.EOF_(); rs.MoveNext()) list.addItem(rs.text("Nombre"), rs.integer("ID"));
}

void choose(forms::ListControl& list, std::int32_t id) {
  if (id == 0 || !list.selectData(id)) list.setListIndex(-1);
}

}  // namespace

Listas::Listas(Settings& settings, std::string application)
    : settings_(settings), application_(std::move(application)) {}

void Listas::fillInstituciones(forms::ListControl& lista, std::int32_t id,
                               FDAPI::Conexion& conexion) {
  const std::string only = id == 0 ? "" : " WHERE IDInstitucion=" + std::to_string(id);
  fill(lista, conexion,
       "SELECT IDInstitucion AS ID, Nombre FROM Institucion" + only + " ORDER BY Nombre", false);
  choose(lista, id);
}

void Listas::fillProvincias(forms::ListControl& lista, std::int32_t id, FDAPI::Conexion& conexion,
                            bool vacia, int) {
  fill(lista, conexion, "SELECT IDProvincia AS ID, Nombre FROM Provincia ORDER BY Nombre", vacia);
  choose(lista, id);
}

void Listas::fillMunicipios(forms::ListControl& lista, std::int32_t idProvincia,
                            std::int32_t idMunicipio, bool vacia, FDAPI::Conexion& conexion) {
  fill(lista, conexion,
       "SELECT IDMunicipio AS ID, Nombre FROM Municipio WHERE CodProvincia=" +
           std::to_string(idProvincia) + " ORDER BY Nombre",
       vacia);
  choose(lista, idMunicipio);
}

void Listas::ConfigGrid(forms::Grid& rejilla, const std::string& ruta) {
  for (int column = 0; column < rejilla.columns(); ++column) {
    const auto width =
        text::toInteger(settings_.read(application_, ruta, std::to_string(column), "-1"));
    if (width && *width >= 0) rejilla.setColumnWidth(column, *width);
  }
}

void Listas::SaveGrid(const forms::Grid& rejilla, const std::string& ruta) {
  for (int column = 0; column < rejilla.columns(); ++column)
    settings_.write(application_, ruta, std::to_string(column),
                    std::to_string(rejilla.columnWidth(column)));
}

}  // namespace fidaleon::support
