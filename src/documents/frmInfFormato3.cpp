#include "documents/frmInfFormato3.h"

namespace fidaleon {

frmInfFormato3::frmInfFormato3(Contexto& contexto)
    : Dialogo(contexto, "frmInfFormato3"),
      chkOpcion(*this, "chkOpcion"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Informe Expediente Matrimonial Formato 3");
  chkOpcion.add(TRAMITA, "El expediente se tramita en la parroquia");
  chkOpcion.add(CURIA, "El expediente se envia a la curia");
  chkOpcion.add(ANTES, "El expediente se envia a la curia antes de amonestar");
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] { Unload(); };
  setDisposable();
  setLayout(forms::column({forms::item(chkOpcion[TRAMITA]), forms::item(chkOpcion[CURIA]),
                           forms::item(chkOpcion[ANTES]), forms::stretch(),
                           forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmInfFormato3::aceptar() {
  blnTramitaParroquia = chkOpcion[TRAMITA].value();
  blnEnviaCuria = chkOpcion[CURIA].value();
  blnEnviaCuriaAntes = chkOpcion[ANTES].value();
  if (!blnTramitaParroquia && !blnEnviaCuria && !blnEnviaCuriaAntes)
    return forms::warn(ui(), "Debe seleccionar al menos una opción");
  Unload();
}

}  // namespace fidaleon
