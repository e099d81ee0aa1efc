#pragma once

#include "support/Ficha.h"

namespace fidaleon::support {

/// A task of the parish's agenda: new, or the one of the given key. It has a day, and begins and
/// ends on it.
class frmTarea : public Ficha {
 public:
  frmTarea(forms::UserInterface& ui, Settings& settings, const Clock& clock,
           FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::int32_t id = 0);

  text::DateSense dateSense(const forms::DateField& field) const override;

  forms::DateField txtFecha{*this, "txtFecha", "FECHA:"};
  forms::TimeField txtHoraInicio{*this, "txtHoraInicio", "HORA DE INICIO:"};
  forms::TimeField txtHoraFin{*this, "txtHoraFin", "HORA DE FIN:"};
  forms::TextBox txtNombre{*this, "txtNombre", "TAREA:"};
  forms::TextBox txtDescripcion{*this, "txtDescripcion", "DESCRIPCION:"};

 protected:
  void cargar() override;
  /// The end that is proposed is the one that is changed most.
  bool settled(const forms::Control& field) const override {
    return &field != &txtHoraFin && Form::settled(field);
  }
  bool comprobar() override;
  void guardar() override;

 private:
  bool comprobarHoras();
};

}  // namespace fidaleon::support
