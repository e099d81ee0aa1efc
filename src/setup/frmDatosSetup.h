#pragma once

#include <vector>

#include "core/lists/DialogoConMemoria.h"

namespace fidaleon {

/// Asks for what documents need of an institution, of every institution that has none of it. With
/// no such institution it is not shown and the result is true. Nothing is stored before all is
/// complete.
class frmDatosSetup : public DialogoConMemoria {
 public:
  explicit frmDatosSetup(Contexto& contexto);

  /// All data are there; false when the user left before.
  bool blnResultado = false;

  enum Dato { PARROCO, ENCARGADO, DIOCESIS, VICARIA };
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::ComboBox cboInstitucion;
  forms::ControlArray<forms::TextBox> txtDatos;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;
  bool asksOnCancel() const override { return true; }

 private:
  void cargarInstituciones();
  void cboInstitucion_Click();
  void aceptar();
  void cancelar();

  /// What stands in the fields goes to the institution they show.
  void recogerCampos();
  void mostrarInstitucion();
  void leerEncargado(FDAPI::cInstitucion& institucion);
  /// Tells of the first value that is missing and goes to its field.
  bool faltaAlgo();
  void guardar(const FDAPI::cInstitucion& institucion);

  std::vector<FDAPI::cInstitucion> colInstituciones_;
  /// Position of the institution in the fields; -1 before the first.
  int mostrada_ = -1;
  std::vector<bool> visitada_;
};

}  // namespace fidaleon
