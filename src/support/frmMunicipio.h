#pragma once

#include "support/Ficha.h"

namespace fidaleon::support {

/// A town and its province: new, or the one of the given key. No two towns of one province have
/// the same name.
class frmMunicipio : public Ficha {
 public:
  frmMunicipio(forms::UserInterface& ui, Settings& settings, const Clock& clock,
               FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::int32_t id = 0);

  forms::TextBox txtNombre{*this, "txtNombre", "NOMBRE:"};
  forms::ComboBox cboProvincia{*this, "cboProvincia", "PROVINCIA:"};
  forms::Button cmdAltaProvincia{*this, "cmdAltaProvincia", "Agregar Provincia"};

 protected:
  void cargar() override;
  bool comprobar() override;
  void guardar() override;

 private:
  void cmdAltaProvincia_Click();
  void fillProvincias(std::int32_t id);
};

}  // namespace fidaleon::support
