#include "census/activities/frmCargo.h"

#include <algorithm>
#include <stdexcept>

#include "census/Operaciones.h"
#include "core/contract/Teclado.h"
#include "core/dialogs/Guard.h"
#include "core/statements/Citas.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

constexpr int MAXIMO_TEXTO = 255;

}  // namespace

frmCargo::frmCargo(Contexto& contexto)
    : Dialogo(contexto, "frmCargo"),
      txtCargo(*this, "txtCargo"),
      cboCargo(*this, "cboCargo", "Seleccione un cargo para el/los colaboradores:"),
      cmdCargo(*this, "cmdCargo") {
  prepararControles();
}

void frmCargo::prepararControles() {
  txtCargo.add(NOMBRE, "NOMBRE:").setMaxLength(MAXIMO_TEXTO);
  txtCargo.add(DESCRIPCION, "DESCRIPCION:").setLines(4);
  cmdCargo.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdCargo.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdCargo.add(AGREGAR, "AÑADIR...").setToolTip("Crea un cargo nuevo y lo deja elegido");
  for (const auto& [indice, boton] : cmdCargo.all())
    boton->onClick = [this, indice = indice] { cmdCargo_Click(Boton(indice)); };
  cboCargo.setWidthChars(40);
  setLayout(forms::column(
      {forms::fields(1, {forms::item(txtCargo[NOMBRE]), forms::item(txtCargo[DESCRIPCION]),
                         forms::item(cboCargo, {&cmdCargo[AGREGAR]})}),
       forms::buttons({&cmdCargo[ACEPTAR], &cmdCargo[CANCELAR]})}));
}

void frmCargo::Form_Load() {
  for (const auto& [indice, campo] : txtCargo.all()) campo->setVisible(!seElige());
  cboCargo.setVisible(seElige());
  cmdCargo[AGREGAR].setVisible(seElige());
  if (!procedimiento("Form_Load", [this] { cargar(); })) Unload();
}

void frmCargo::cargar() {
  setEntersFields(!seElige() && introPasaDeCampo(contexto_.entorno.settings));
  setCaption(seElige() ? "Asignar cargo" : "Agregar cargo");
  if (seElige()) return listarCargos();
  if (Operacion == cCOperacion::EDITAR) mostrarCargo();
}

void frmCargo::mostrarCargo() {
  const store::Recordset fila =
      conBaseDatos->Execute("SELECT * FROM Cargo WHERE IDCargo=" + std::to_string(IDCargo));
  if (fila.EOF_()) throw std::runtime_error("El cargo ya no existe.");
  txtCargo[NOMBRE].setText(fila.text("Nombre"));
  txtCargo[DESCRIPCION].setText(fila.text("Descripcion"));
  setCaption("Propiedades del cargo " + fila.text("Nombre"));
}

void frmCargo::listarCargos() {
  cboCargo.clear();
  for (store::Recordset rs = conBaseDatos->Execute("SELECT * FROM Cargo ORDER BY Nombre");
       !rs.EOF_(); rs.MoveNext())
    cboCargo.addItem(rs.text("Nombre"), rs.integer("IDCargo"));
}

void frmCargo::cmdCargo_Click(Boton boton) {
  procedimiento("cmdCargo_Click", [&] {
    if (boton == AGREGAR) return agregar();
    if (boton == CANCELAR) return Unload();
    seElige() ? elegir() : aceptar();
  });
}

void frmCargo::agregar() {
  const std::int64_t elegido = cboCargo.data();
  std::int64_t ultimo = elegido;
  for (int i = 0; i < cboCargo.listCount(); ++i) ultimo = std::max(ultimo, cboCargo.itemData(i));
  censo::NuevoCargo(contexto_, *conBaseDatos, true);
  listarCargos();
  cboCargo.selectData(elegido);
  for (int i = 0; i < cboCargo.listCount(); ++i)
    if (cboCargo.itemData(i) > ultimo) return cboCargo.setListIndex(i);
}

void frmCargo::elegir() {
  if (!text::trim(cboCargo.text()).empty()) {
    lngCargo = static_cast<std::int32_t>(cboCargo.data());
    strCargo = cboCargo.text();
  }
  Unload();
}

void frmCargo::aceptar() {
  const std::string nombre = text::trim(txtCargo[NOMBRE].text());
  const char* falta = nombre.empty()     ? "¡Debe introducir el nombre del cargo!"
                      : repetido(nombre) ? "¡Ya existe un cargo con este nombre!"
                                         : nullptr;
  if (falta) {
    forms::warn(ui(), falta);
    return setFocus(txtCargo[NOMBRE]);
  }
  guardar(nombre);
  Unload();
}

bool frmCargo::repetido(const std::string& nombre) {
  const std::string otro = Operacion == cCOperacion::EDITAR
                               ? " AND IDCargo<> " + std::to_string(IDCargo)
                               : std::string();
  return !conBaseDatos->Execute("SELECT * FROM Cargo WHERE Nombre=" + entreComillas(nombre) + otro)
              .EOF_();
}

void frmCargo::guardar(const std::string& nombre) {
  const std::string descripcion = entreComillas(txtCargo[DESCRIPCION].text());
  if (Operacion == cCOperacion::EDITAR)
    conBaseDatos->Execute("UPDATE Cargo SET Nombre=" + entreComillas(nombre) + ",Descripcion=" +
                          descripcion + " WHERE IDCargo=" + std::to_string(IDCargo));
  else
    conBaseDatos->Execute("INSERT INTO Cargo (Nombre,Descripcion) VALUES (" +
                          entreComillas(nombre) + "," + descripcion + ");");
}

}  // namespace fidaleon
