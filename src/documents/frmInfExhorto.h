#pragma once

#include <functional>
#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// "Datos exhorto de amonestaciones": the parishes of residence that are to publish the banns of a
/// marriage. Begins with what is stored with the spouses, and stores it there when the user says
/// so. Set the public fields, then Show(). An apostrophe that is typed stands twice in its box.
class frmInfExhorto : public Dialogo {
 public:
  explicit frmInfExhorto(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  std::string strID;  // of the marriage
  /// Takes the entry before anything is stored; false when another has it. Empty: the caller does.
  std::function<bool()> bloquear;

  bool blnCancelar = true;

  enum Dato {
    ParroquiaNovio,
    PoblacionNovio,
    DiocesisNovio,
    ParroquiaNovia,
    PoblacionNovia,
    DiocesisNovia,
  };
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::Frame fraNovio;
  forms::Frame fraNovia;
  forms::ControlArray<forms::TextBox> txtDato;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;

 private:
  void crearCajas();
  void cargar();
  void aceptar();
  /// Says so when what was typed could not be stored.
  void guardar();
  void guardarEnteros();

  std::string novio_, novia_;  // keys; empty when the marriage is gone
};

}  // namespace fidaleon
