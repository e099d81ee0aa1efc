#pragma once

#include "support/Ficha.h"

namespace fidaleon::support {

/// A province: new, or the one of the given key. No two have the same name.
class frmProvincia : public Ficha {
 public:
  frmProvincia(forms::UserInterface& ui, Settings& settings, const Clock& clock,
               FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::int32_t id = 0);

  forms::TextBox txtNombre{*this, "txtNombre", "NOMBRE:"};
  forms::TextBox txtCodigoOficial{*this, "txtCodigoOficial", "CODIGO OFICIAL:"};

 protected:
  void cargar() override;
  bool comprobar() override;
  void guardar() override;
};

}  // namespace fidaleon::support
