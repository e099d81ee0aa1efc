#include "census/search/frmPadronBusqueda.h"

#include "census/search/frmPadronDetalles.h"
#include "core/dialogs/Guard.h"
#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"

namespace fidaleon {

namespace {

const Rejilla REJILLA{
    "Grids\\PadronBusqueda\\PadronBusqueda",
    {{"Nombre", 1250}, {"Apellidos", 2300}, {"D.N.I.", 1150}, {"Dirección", 1500}, {"Teléfono"}}};

/// One notice of change for all the rows that come in.
class Llenado {
 public:
  explicit Llenado(forms::Grid& rejilla) : rejilla_(rejilla) { rejilla_.beginUpdate(); }
  ~Llenado() { rejilla_.endUpdate(); }
  Llenado(const Llenado&) = delete;
  Llenado& operator=(const Llenado&) = delete;

 private:
  forms::Grid& rejilla_;
};

}  // namespace

frmPadronBusqueda::frmPadronBusqueda(Contexto& contexto)
    : Dialogo(contexto, "frmPadronBusqueda"),
      lblBuscado(*this, "lblBuscado"),
      msgBusquedaPadron(*this, "msgBusquedaPadron"),
      cmdBotones(*this, "cmdBotones") {
  setCaption("DETALLES");
  lblBuscado.setLabel(makeLabel("lblBusqueda", "BÚSQUEDA:"));
  cmdBotones.add(DETALLES, "DETALLES").setDefault(true);
  cmdBotones.add(SELECCIONAR, "SELECCIONAR");
  cmdBotones.add(CANCELAR, "CANCELAR").setCancel(true);
  for (const auto& [indice, boton] : cmdBotones.all())
    boton->onClick = [this, indice = indice] { cmdBotones_Click(Boton(indice)); };
  msgBusquedaPadron.onDblClick = [this] {
    procedimiento("msgBusquedaPadron_DblClick()", [this] { detalles(); });
  };
  setDisposable();
  setLayout(forms::column(
      {forms::fields(1, {forms::item(lblBuscado)}), forms::item(msgBusquedaPadron),
       forms::buttons({&cmdBotones[DETALLES], &cmdBotones[SELECCIONAR], &cmdBotones[CANCELAR]})}));
}

void frmPadronBusqueda::Form_Load() {
  mostrarBuscado();
  ConfigGridBusqueda();
  CargaGridBusqueda();
  const bool hayFilas = msgBusquedaPadron.rowCount() > 0;
  if (hayFilas) msgBusquedaPadron.setRow(1);
  cmdBotones[DETALLES].setEnabled(hayFilas);
  cmdBotones[SELECCIONAR].setEnabled(hayFilas && blnSeleccionar);
}

void frmPadronBusqueda::Form_Unload() {
  procedimiento("Form_Unload",
                [this] { cIListas(contexto_).SaveGrid(msgBusquedaPadron, REJILLA); });
}

void frmPadronBusqueda::mostrarBuscado() {
  std::string buscado;
  for (const std::string* parte : {&Nombre, &PrimerApellido, &SegundoApellido})
    if (!parte->empty()) buscado += (buscado.empty() ? "" : " ") + *parte;
  lblBuscado.setCaption(buscado);
  lblBuscado.setVisible(!buscado.empty());
}

void frmPadronBusqueda::ConfigGridBusqueda() {
  cIListas(contexto_).ConfigGrid(msgBusquedaPadron, REJILLA, "ConfigGridBusqueda",
                                 "frmPadronBusqueda");
}

void frmPadronBusqueda::CargaGridBusqueda() {
  procedimiento("CargaGridBusqueda", [this] {
    const forms::Hourglass espera(ui());
    const Llenado llenado(msgBusquedaPadron);
    msgBusquedaPadron.clearRows();
    if (registros->RecordCount() == 0) return;
    for (registros->MoveFirst(); !registros->EOF_(); registros->MoveNext())
      msgBusquedaPadron.addRow(
          {registros->text("Nombre"),
           registros->text("PrimerApellido") + " " + registros->text("SegundoApellido"),
           registros->text("DNI"), registros->text("Direccion"), registros->text("Telefono")},
          registros->integer("IDPadron"));
  });
}

void frmPadronBusqueda::cmdBotones_Click(Boton boton) {
  procedimiento("cmdBotones_Click", [&] {
    switch (boton) {
      case DETALLES:
        return detalles();
      case SELECCIONAR:
        return seleccionar();
      case CANCELAR:
        return Unload();
    }
  });
}

std::int32_t frmPadronBusqueda::elegido() const {
  const int fila = msgBusquedaPadron.row();
  return fila == 0 ? 0 : static_cast<std::int32_t>(msgBusquedaPadron.rowKey(fila));
}

void frmPadronBusqueda::detalles() {
  if (elegido() == 0) return;
  frmPadronDetalles detalle(contexto_);
  detalle.conBaseDatos = conBaseDatos;
  detalle.IDPadron = elegido();
  detalle.Show();
  setFocus(msgBusquedaPadron);
}

void frmPadronBusqueda::seleccionar() {
  if (elegido() == 0) return;
  const forms::Hourglass espera(ui());
  lngSeleccionado = elegido();
  Unload();
}

}  // namespace fidaleon
