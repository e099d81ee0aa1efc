#pragma once

#include <cstdint>
#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// The persons that a search has found, to look at and to choose from. Set the public fields, then
/// Show().
class frmPadronBusqueda : public Dialogo {
 public:
  explicit frmPadronBusqueda(Contexto& contexto);

  /// Not owned, as the record set; both must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// Rows of Padron; read from the first to the last.
  store::Recordset* registros = nullptr;
  /// PADRON or COLABORADOR: who asks.
  FDAPI::cCOrigen Origen{};
  /// False when the caller edits somebody and cannot take another person in their place.
  bool blnSeleccionar = true;
  /// What was searched for; shown when there is any of it.
  std::string Nombre, PrimerApellido, SegundoApellido;

  /// IDPadron of the person chosen, to be handed on; 0 when none was.
  std::int32_t lngSeleccionado = 0;

  enum Boton { DETALLES = 0, SELECCIONAR = 1, CANCELAR = 2 };

  forms::Label lblBuscado;
  forms::Grid msgBusquedaPadron;  // row keys: IDPadron
  forms::ControlArray<forms::Button> cmdBotones;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void ConfigGridBusqueda();
  void CargaGridBusqueda();
  void mostrarBuscado();
  void cmdBotones_Click(Boton boton);
  void detalles();
  void seleccionar();
  std::int32_t elegido() const;
};

}  // namespace fidaleon
