#pragma once

#include <string>

#include "core/dialogs/Dialogo.h"
#include "core/lists/ListaDoble.h"

namespace fidaleon {

/// Asks what a report of the parish's people is to show and writes its rows into
/// Informe_Colaboradores: institutions for the groups with their counts, or an activity of an
/// institution and some of its groups for the collaborators. No group chosen means all of the
/// activity. Set the public fields, then Show(). An error takes back the rows; the dialog stays
/// until the table holds a row, also one of an earlier run, or the user cancels.
class frmInfActividad : public Dialogo {
 public:
  explicit frmInfActividad(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conFidaleon = nullptr;
  FDAPI::Conexion* conInformes = nullptr;
  /// ACTIVIDAD, COLABORADOR or COLABORADOREXT.
  FDAPI::cCOrigen modo = FDAPI::cCOrigen::ACTIVIDAD;

  enum Lista { DISPONIBLES = 0, SELECCIONADAS = 1 };
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::ComboBox cboInstitucion;
  forms::ComboBox cboActividad;
  forms::CheckBox chkSinActividad;
  forms::Frame fraListas;
  forms::ControlArray<forms::ListBox> lstListas;
  forms::ControlArray<forms::Button> cmdMover;
  forms::Label lblTodosGrupos;
  forms::Progress abpProgreso;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;

 private:
  void prepararControles();
  bool deActividades() const { return modo == FDAPI::cCOrigen::ACTIVIDAD; }
  void cargar();
  void listarInstituciones();
  void cboInstitucion_Click();
  void cboActividad_Click();
  void aceptar();
  /// Tells what is missing.
  bool completo();
  bool rellenar();
  bool rellenarActividades(FDAPI::cProgreso& progreso);
  bool rellenarColaboradores(FDAPI::cProgreso& progreso);
  /// A condition on the lines of the second list; empty when it has none.
  std::string restriccion(const char* columna);

  ListaDoble listas_;
};

}  // namespace fidaleon
