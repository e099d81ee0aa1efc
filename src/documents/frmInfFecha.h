#pragma once

#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// Asks for the day that a document bears, beginning with today. Title and label may be others:
/// setCaption() and setRotulo() before Show().
class frmInfFecha : public Dialogo {
 public:
  explicit frmInfFecha(Contexto& contexto);

  void setRotulo(const std::string& rotulo);

  /// "yyyymmdd"; empty unless accepted.
  std::string strFecha;
  bool blnCancelar = true;

  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::DateField adtpFecha;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;

 private:
  void aceptar();
};

}  // namespace fidaleon
