#pragma once

#include <cstdint>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// A read-only summary of six labelled lines. Set the public fields, then Show().
class frmDetallePadres : public Dialogo {
 public:
  explicit frmDetallePadres(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// The baptism that a look-up found, or the request.
  std::int32_t lngID = 0;
  FDAPI::cCOrigen Origen{};

  forms::ControlArray<forms::Label> lblDetalle;
  forms::ControlArray<forms::TextBox> txtDetalle;
  forms::Button cmdCerrar;

 protected:
  void Form_Load() override;
};

}  // namespace fidaleon
