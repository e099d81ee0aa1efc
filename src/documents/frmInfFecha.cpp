#include "documents/frmInfFecha.h"

namespace fidaleon {

frmInfFecha::frmInfFecha(Contexto& contexto)
    : Dialogo(contexto, "frmInfFecha"),
      adtpFecha(*this, "adtpFecha", "FECHA DE IMPRESIÓN DEL DOCUMENTO:"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Fecha de impresión");
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] { Unload(); };
  setDisposable();
  setLayout(forms::column({forms::fields(1, {forms::item(adtpFecha)}), forms::stretch(),
                           forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmInfFecha::setRotulo(const std::string& rotulo) {
  adtpFecha.label()->setCaption(rotulo);
}

void frmInfFecha::Form_Load() {
  adtpFecha.setToday(contexto_.hoy());
}

void frmInfFecha::aceptar() {
  if (adtpFecha.stored().empty()) {
    contexto_.fidaleon()->verfalta(*adtpFecha.label());
    return setFocus(adtpFecha);
  }
  strFecha = adtpFecha.stored();
  blnCancelar = false;
  Unload();
}

}  // namespace fidaleon
