#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// Who signs a document as keeper of the archive, and with which date. Set the public fields, then
/// Show(); the results stand in strEncargado, strFecha and lngInstitucion. Cancelled, closed or
/// with an entry of no institution: no keeper and today's date. Holds its own locks while open.
class frmEncargado : public Dialogo {
 public:
  explicit frmEncargado(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// As it stands in table names: "Bautismo", "Defuncion".
  std::string Sacramento;
  std::int32_t IDPartida = 0;

  std::string strEncargado;
  /// "yyyymmdd".
  std::string strFecha;
  /// The institution of the entry; 0 when there is none.
  std::int32_t lngInstitucion = 0;

  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::Label lblInstitucion;
  forms::ComboBox cboEncargado;
  forms::Button cmdAgregarEncargado;
  forms::DateField adtpFecha;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void cargar();
  bool leerInstitucion();
  bool bloquearInstitucion();
  void CargarComboEncargados();
  void elegirUltimo();
  void agregarEncargado();
  void guardarEncargado(const std::string& nombre);
  void aceptar();
  void cancelar();

  std::unique_ptr<FDAPI::cProcesarBloqueos> bloqueos_;
};

}  // namespace fidaleon
