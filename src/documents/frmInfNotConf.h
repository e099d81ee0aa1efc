#pragma once

#include <vector>

#include "core/dialogs/Dialogo.h"
#include "forms/Controls.h"
#include "registers/confirmation/cConfirmacion.h"

namespace fidaleon {

/// "Imprimir notificación sin libro": a list of notices to parishes of baptism, kept in memory as
/// long as the dialog is open, and one row of Documentos_Confirmacion for each when the user prints
/// them, all or none; the dialog then closes for the program to show them. The caller holds the
/// locks.
class frmInfNotConf : public Dialogo {
 public:
  explicit frmInfNotConf(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  FDAPI::Conexion* conInformes = nullptr;

  enum Pestana { INSTITUCION, NOTIFICACIONES };
  enum Boton { AGREGAR, MODIFICAR, QUITAR, IMPRIMIR, CANCELAR };

  forms::TabStrip mstNotificacion;
  forms::ComboBox cboInstitucion;
  forms::Button cmdInstitucion;
  forms::Grid msgNotificacion;  // keys: IDConfirmacion
  forms::Progress abpProgreso;
  forms::ControlArray<forms::Button> cmdNotificacion;

  /// The notices, line by line: what is lost with the dialog.
  std::string ownWork() const override;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void cargar();
  void elegirInstitucion();
  void agregarInstitucion();
  bool salirDe(int pestana);
  void agregar();
  void modificar();
  void quitar();
  void imprimir();
  void escribir();
  /// What a new notice begins with: its institution, and the day and the minister of the last one.
  cConfirmacion modelo() const;
  /// Null when no row is chosen.
  cConfirmacion* elegida();
  std::vector<std::string> celdas(const cConfirmacion& notificacion) const;

  std::vector<cConfirmacion> notificaciones_;
  std::int64_t institucion_ = 0;
};

}  // namespace fidaleon
