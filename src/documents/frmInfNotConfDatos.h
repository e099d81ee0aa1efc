#pragma once

#include <optional>
#include <vector>

#include "core/dialogs/Dialogo.h"
#include "core/lists/Enlaces.h"
#include "registers/confirmation/cConfirmacion.h"

namespace fidaleon {

/// One notice of a confirmation that stands in no book. Set the public fields, then Show(); what
/// was accepted stands in `aceptada`. Stores nothing. The caller holds the locks.
class frmInfNotConfDatos : public Dialogo {
 public:
  explicit frmInfNotConfDatos(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// ANADIR or EDITAR.
  FDAPI::cCOperacion Operacion{};
  /// Those that are there already; not owned.
  const std::vector<cConfirmacion>* colNotificaciones = nullptr;
  /// What the fields show at first.
  cConfirmacion notificacion;

  /// Empty when the dialog was cancelled.
  std::optional<cConfirmacion> aceptada;

  enum Texto {
    Nombre,
    PrimerApellido,
    SegundoApellido,
    Edad,
    Ministro,
    Padrino,
    InstitucionNombre,
    InstitucionTipo,
    Direccion,
    Diocesis,
    ParroquiaBaut,
    DireccionBaut,
    LibroBaut,
    FolioBaut,
    NumeroBaut,
  };
  enum Fecha { FechaConfirmacion, FechaBautismo };
  enum Lugar { Provincia, Poblacion, ProvinciaBaut, PoblacionBaut };
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::Frame fraConfirmacion;
  forms::Frame fraBautismo;
  forms::ControlArray<forms::TextBox> txtNotifica;
  forms::ControlArray<forms::DateField> adtpNotifica;
  forms::ControlArray<forms::ComboBox> cboNotifica;
  forms::ControlArray<forms::Button> cmdNotifica;

 protected:
  void Form_Load() override;

 private:
  void crearCampos();
  forms::LayoutNode disposicion();
  void aceptar();
  bool faltaNombre();
  bool yaEsta() const;
  bool fechasValidas();
  bool rellenarVacios();
  cConfirmacion tecleada() const;

  Enlaces<cConfirmacion> enlaces_;
  std::unique_ptr<ParProvinciaPoblacion> parroquia_;
  std::unique_ptr<ParProvinciaPoblacion> bautismo_;
};

}  // namespace fidaleon
