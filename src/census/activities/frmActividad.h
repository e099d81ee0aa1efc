#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "census/activities/AlmacenActividades.h"
#include "census/activities/BloqueosDeLista.h"
#include "core/lists/DialogoConMemoria.h"

namespace fidaleon {

/// An activity: its data on one tab, its groups on another. Set the public fields, then Show().
/// The groups are a working copy: nothing is stored before the dialog is accepted, and then all of
/// it or, with an error, nothing and the dialog stays. The caller holds the lock of the activity;
/// those of the groups are the dialog's own and are kept until it closes.
class frmActividad : public DialogoConMemoria {
 public:
  explicit frmActividad(Contexto& contexto);

  FDAPI::cCOperacion Operacion{};  // ANADIR or EDITAR
  std::int32_t IDActividad = 0;    // with EDITAR
  /// COLABORADOR when the card of a collaborator has led here.
  FDAPI::cCOrigen Origen = FDAPI::cCOrigen::PRINCIPAL;
  /// The groups can be looked at and no more.
  bool blnOcultar = false;

  bool takesFormer() const override {
    return Operacion == FDAPI::cCOperacion::ANADIR && !isReadOnly();
  }
  /// The changed groups; they cannot be put back, only read.
  std::string ownWork() const override;

  forms::TabStrip mstActividad;
  forms::ControlArray<forms::TextBox> txtActividad;
  enum Campo { NOMBRE, DESCRIPCION };
  forms::ComboBox cboInstitucion;
  forms::Grid msgGrupos;  // the key of a row is that of the group
  forms::ControlArray<forms::Button> cmdActividad;
  enum Boton { ACEPTAR, CANCELAR, AGREGAR, MODIFICAR, QUITAR };
  enum Pestana { TAB_ACTIVIDAD, TAB_GRUPOS };

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void prepararControles();
  void cargar();
  bool CargarDatosGrupos();
  void mostrarActividad();
  bool mstActividad_MouseDown(int pestana);

  // Groups
  void CargaGridGrupos();
  void llenarRejilla();
  void agregar();
  void modificar();
  void quitar();
  bool abrirGrupo(FDAPI::cCOperacion operacion, std::int32_t IDGrupo);
  cPadronActGrupos* elegido();

  // Acceptance
  void cmdActividad_Click(Boton boton);
  void aceptar();
  bool rehusar(const char* mensaje, forms::Control& campo);
  bool validar();
  bool repetida();
  bool AgregarActividad();
  bool EditarActividad();
  Actividad datos() const;

  ColeccionGrupos colGrupos_;
  std::unique_ptr<BloqueosDeLista> bloqueos_;
  bool cargado_ = false;
};

}  // namespace fidaleon
