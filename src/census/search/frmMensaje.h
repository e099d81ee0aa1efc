#pragma once

#include <cstdint>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// Tells that a typed DNI is that of another person, and offers their card and their data. Set the
/// public fields, then Show(). For another source than PADRON there is nothing to look at or take.
class frmMensaje : public Dialogo {
 public:
  explicit frmMensaje(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  FDAPI::cCOrigen Origen{};
  /// The person of that DNI.
  std::int32_t IDPadron = 0;

  /// The caller is to go on with that person instead of what was being typed.
  bool blnImportar = false;

  enum Boton { DETALLES = 0, IMPORTAR = 1, CANCELAR = 2 };

  forms::Label lblMensaje;
  forms::ControlArray<forms::Button> cmdMensaje;

 protected:
  void Form_Load() override;

 private:
  void cmdMensaje_Click(Boton boton);
  void detalles();
};

}  // namespace fidaleon
