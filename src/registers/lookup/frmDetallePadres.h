#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// A read-only summary of six labelled lines. Set the public fields, then Show().
class frmDetallePadres : public Dialogo {
 public:
  explicit frmDetallePadres(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// The baptism whose parents are shown.
  std::int32_t lngID = 0;
  FDAPI::cCOrigen Origen{};

  static constexpr int LINEAS = 6;
  forms::ControlArray<forms::Label> lblDetalle;
  forms::ControlArray<forms::TextBox> txtDetalle;
  forms::Button cmdCerrar;

 protected:
  void Form_Load() override;

 private:
  void CargarDetalleBautismo();
  /// "town (province)", empty for none.
  std::string lugar(std::int32_t idMunicipio);
  std::string naturalDe(const std::string& nombre, std::int32_t idMunicipio);
};

}  // namespace fidaleon
