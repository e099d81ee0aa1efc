#include "support/frmProvincia.h"

#include "core/statements/NombreRepetido.h"
#include "text/Numbers.h"

namespace fidaleon::support {

frmProvincia::frmProvincia(forms::UserInterface& ui, Settings& settings, const Clock& clock,
                           FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::int32_t id)
    : Ficha(ui, settings, clock, conexion, config, "frmProvincia", id) {
  setCaption(id == 0 ? "Agregar provincia" : "Propiedades de la provincia");
  txtNombre.setMaxLength(100);
  txtNombre.setWidthChars(40);
  txtCodigoOficial.setDigitsOnly(true);
  txtCodigoOficial.setMaxLength(2);
  txtCodigoOficial.setWidthChars(4);
  txtCodigoOficial.setToolTip("Código de dos cifras de la provincia; puede quedar vacío");
  setLayout(
      forms::column({forms::fields(1, {forms::item(txtNombre), forms::item(txtCodigoOficial)}),
                     forms::stretch(), botones()}));
}

void frmProvincia::cargar() {
  if (id_ == 0) return;
  const store::Recordset rs =
      conexion_.Execute("SELECT * FROM Provincia WHERE IDProvincia=" + std::to_string(id_));
  if (rs.EOF_()) throw std::runtime_error("La provincia ya no existe.");
  txtNombre.setText(rs.text("Nombre"));
  if (rs.integer("Codigo_Oficial") != 0) txtCodigoOficial.setText(rs.text("Codigo_Oficial"));
}

bool frmProvincia::comprobar() {
  if (sinBlancos(txtNombre).empty()) return falta(txtNombre);
  const std::string others = " AND IDProvincia<>" + std::to_string(id_);
  if (hayMismoNombre(conexion_,
                     "SELECT Nombre FROM Provincia WHERE IDProvincia<>" + std::to_string(id_),
                     txtNombre.text()))
    return rechazar(txtNombre, "¡Ya existe una provincia con ese nombre!");
  const std::int32_t code = text::toInteger(txtCodigoOficial.text()).value_or(0);
  if (code != 0 && !conexion_
                        .Execute("SELECT IDProvincia FROM Provincia WHERE Codigo_Oficial=" +
                                 std::to_string(code) + others)
                        .EOF_())
    return rechazar(txtCodigoOficial, "¡Ya existe una provincia con ese código oficial!");
  return true;
}

void frmProvincia::guardar() {
  const std::string name = entreComillas(txtNombre.text());
  const std::string code = std::to_string(text::toInteger(txtCodigoOficial.text()).value_or(0));
  if (id_ != 0) {
    conexion_.Execute("UPDATE Provincia SET Nombre=" + name + ", Codigo_Oficial=" + code +
                      " WHERE IDProvincia=" + std::to_string(id_));
    return;
  }
  conexion_.Execute("INSERT INTO Provincia (Nombre, Codigo_Oficial) VALUES (" + name + ", " + code +
                    ")");
  id_ = static_cast<std::int32_t>(
      conexion_.Execute("SELECT MAX(IDProvincia) AS ID FROM Provincia").integer("ID"));
}

}  // namespace fidaleon::support
