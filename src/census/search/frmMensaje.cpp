#include "census/search/frmMensaje.h"

#include "census/search/frmPadronDetalles.h"
#include "core/dialogs/Guard.h"

namespace fidaleon {

namespace {

constexpr const char* TEXTO =
    "Se ha encontrado un empadronado con el mismo DNI que el que se pretende introducir.   Puede "
    "usted hacer click sobre el botón \"Detalles\" para ver los datos del empadronado  o por  el  "
    "contrario  puede  hacer click sobre el botón \"Importar\" para seleccionar sus datos.";

}  // namespace

frmMensaje::frmMensaje(Contexto& contexto)
    : Dialogo(contexto, "frmMensaje"),
      lblMensaje(*this, "lblMensaje", TEXTO),
      cmdMensaje(*this, "cmdMensaje") {
  lblMensaje.setWidthChars(60);
  cmdMensaje.add(DETALLES, "DETALLES").setDefault(true);
  cmdMensaje.add(IMPORTAR, "IMPORTAR");
  cmdMensaje.add(CANCELAR, "CANCELAR").setCancel(true);
  for (const auto& [indice, boton] : cmdMensaje.all())
    boton->onClick = [this, indice = indice] { cmdMensaje_Click(Boton(indice)); };
  setDisposable();
  setLayout(forms::column(
      {forms::item(lblMensaje), forms::stretch(),
       forms::buttons({&cmdMensaje[DETALLES], &cmdMensaje[IMPORTAR], &cmdMensaje[CANCELAR]})}));
}

void frmMensaje::Form_Load() {
  procedimiento("FormLoad()", [this] {
    const bool padron = Origen == FDAPI::cCOrigen::PADRON;
    setCaption(padron ? "Coincidencia de empadronado" : contexto_.tituloAplicacion);
    cmdMensaje[DETALLES].setEnabled(padron);
    cmdMensaje[IMPORTAR].setEnabled(padron);
  });
}

void frmMensaje::cmdMensaje_Click(Boton boton) {
  procedimiento("cmdMensaje_Click(", [&] {
    if (boton == DETALLES) return detalles();
    blnImportar = boton == IMPORTAR;
    Unload();
  });
}

void frmMensaje::detalles() {
  frmPadronDetalles detalle(contexto_);
  detalle.conBaseDatos = conBaseDatos;
  detalle.IDPadron = IDPadron;
  detalle.Show();
}

}  // namespace fidaleon
