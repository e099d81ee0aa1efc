#pragma once

#include <cstdint>
#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// An office (Cargo). Set the public fields, then Show(). With Operacion ANADIR or EDITAR it edits
/// one and stores it when accepted; with Origen ACTIVIDAD the user chooses one of all. The caller
/// holds the locks.
class frmCargo : public Dialogo {
 public:
  explicit frmCargo(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  FDAPI::cCOrigen Origen{};
  FDAPI::cCOperacion Operacion{};
  std::int32_t IDCargo = 0;  // with EDITAR

  /// With Origen ACTIVIDAD: the office chosen and its name; 0 when none was.
  std::int32_t lngCargo = 0;
  std::string strCargo;

  forms::ControlArray<forms::TextBox> txtCargo;
  enum Campo { NOMBRE, DESCRIPCION };
  forms::ComboBox cboCargo;
  forms::ControlArray<forms::Button> cmdCargo;
  enum Boton { ACEPTAR, CANCELAR, AGREGAR };

 protected:
  void Form_Load() override;

 private:
  void prepararControles();
  void cargar();
  void mostrarCargo();
  void listarCargos();
  void cmdCargo_Click(Boton boton);
  void agregar();
  void aceptar();
  void elegir();
  void guardar(const std::string& nombre);
  bool repetido(const std::string& nombre);
  bool seElige() const { return Origen == FDAPI::cCOrigen::ACTIVIDAD; }
};

}  // namespace fidaleon
