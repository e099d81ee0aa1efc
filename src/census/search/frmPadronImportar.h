#pragma once

#include <cstdint>
#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// Looks for a person by name or DNI, each field exactly as it is typed. Set the public fields,
/// then Show(). Closes behind the list of those found, whether one was chosen or not.
class frmPadronImportar : public Dialogo {
 public:
  explicit frmPadronImportar(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// PADRON or COLABORADOR; a collaborator cannot be looked for by DNI.
  FDAPI::cCOrigen Origen{};
  /// False when the caller edits somebody and cannot take another person in their place.
  bool blnSeleccionar = true;

  /// IDPadron of the person chosen, to be handed on; 0 when none was.
  std::int32_t lngSeleccionado = 0;

  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::TextBox txtNombre;
  forms::Label lblApellidos;
  forms::TextBox txtPrimerApellido;
  forms::TextBox txtSegundoApellido;
  forms::TextBox txtDNI;
  forms::Label lblDonde;
  forms::ControlArray<forms::Button> cmdPadronImportar;

 protected:
  void Form_Load() override;

 private:
  void cmdPadronImportar_Click();
  void buscar();
  /// Empty when no field is filled.
  std::string condiciones() const;
  void mostrar(store::Recordset& encontrados);
};

}  // namespace fidaleon
