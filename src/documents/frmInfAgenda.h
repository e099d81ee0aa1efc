#pragma once

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// Asks for two days and writes a row of Tareas_Agenda for each task from the one to the other,
/// both included. Set the public fields, then Show(). Each row is committed by itself: an error
/// leaves those before it. The dialog stays until the table holds a row or the user cancels.
class frmInfAgenda : public Dialogo {
 public:
  explicit frmInfAgenda(Contexto& contexto);

  text::DateSense dateSense(const forms::DateField& field) const override;

  /// Not owned; must be set before the dialog is accepted.
  FDAPI::Conexion* conBaseDatos = nullptr;
  FDAPI::Conexion* conInformes = nullptr;

  enum Fecha { DESDE = 0, HASTA = 1 };
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::ControlArray<forms::DateField> adtpFecha;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;

 private:
  /// A first day behind the second is told, and the second is brought up to it.
  void adtpFecha_LostFocus(const forms::Control* siguiente);
  void aceptar();
  void escribir();
};

}  // namespace fidaleon
