#pragma once

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// "Informe Expediente Matrimonial Formato 3": by which way the dossier goes. All three are false
/// when the user has cancelled.
class frmInfFormato3 : public Dialogo {
 public:
  explicit frmInfFormato3(Contexto& contexto);

  bool blnTramitaParroquia = false;
  bool blnEnviaCuria = false;
  bool blnEnviaCuriaAntes = false;

  enum Opcion { TRAMITA, CURIA, ANTES };
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::ControlArray<forms::CheckBox> chkOpcion;
  forms::ControlArray<forms::Button> cmdBoton;

 private:
  void aceptar();
};

}  // namespace fidaleon
