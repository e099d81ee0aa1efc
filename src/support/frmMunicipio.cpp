#include "support/frmMunicipio.h"

#include "core/statements/NombreRepetido.h"
#include "support/Listas.h"
#include "support/frmProvincia.h"

namespace fidaleon::support {

frmMunicipio::frmMunicipio(forms::UserInterface& ui, Settings& settings, const Clock& clock,
                           FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::int32_t id)
    : Ficha(ui, settings, clock, conexion, config, "frmMunicipio", id) {
  setCaption(id == 0 ? "Agregar municipio" : "Propiedades del municipio");
  txtNombre.setMaxLength(100);
  txtNombre.setWidthChars(40);
  cmdAltaProvincia.onClick = [this] { cmdAltaProvincia_Click(); };
  setLayout(forms::column(
      {forms::fields(1, {forms::item(cboProvincia, {&cmdAltaProvincia}), forms::item(txtNombre)}),
       forms::stretch(), botones()}));
}

void frmMunicipio::fillProvincias(std::int32_t id) {
  Listas(settings_, config_.AppTitle).fillProvincias(cboProvincia, id, conexion_);
}

void frmMunicipio::cargar() {
  if (id_ == 0) return fillProvincias(0);
  const store::Recordset rs =
      conexion_.Execute("SELECT * FROM Municipio WHERE IDMunicipio=" + std::to_string(id_));
  if (rs.EOF_()) throw std::runtime_error("El municipio ya no existe.");
  txtNombre.setText(rs.text("Nombre"));
  fillProvincias(static_cast<std::int32_t>(rs.integer("CodProvincia")));
}

void frmMunicipio::cmdAltaProvincia_Click() {
  informado("cmdAltaProvincia_Click()", [this] {
    frmProvincia dialog(ui(), settings_, clock_, conexion_, config_);
    dialog.Show();
    if (dialog.aceptado()) fillProvincias(dialog.id());
  });
}

bool frmMunicipio::comprobar() {
  if (cboProvincia.listIndex() < 0) return falta(cboProvincia);
  if (sinBlancos(txtNombre).empty()) return falta(txtNombre);
  if (hayMismoNombre(
          conexion_,
          "SELECT Nombre FROM Municipio WHERE CodProvincia=" + std::to_string(cboProvincia.data()) +
              " AND IDMunicipio<>" + std::to_string(id_),
          txtNombre.text()))
    return rechazar(txtNombre, "¡Ya existe un municipio con ese nombre en la provincia!");
  return true;
}

void frmMunicipio::guardar() {
  const std::string name = entreComillas(txtNombre.text());
  const std::string province = std::to_string(cboProvincia.data());
  if (id_ != 0) {
    conexion_.Execute("UPDATE Municipio SET Nombre=" + name + ", CodProvincia=" + province +
                      " WHERE IDMunicipio=" + std::to_string(id_));
    return;
  }
  conexion_.Execute("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (" + name + ", " +
                    province + ")");
  id_ = static_cast<std::int32_t>(
      conexion_.Execute("SELECT MAX(IDMunicipio) AS ID FROM Municipio").integer("ID"));
}

}  // namespace fidaleon::support
