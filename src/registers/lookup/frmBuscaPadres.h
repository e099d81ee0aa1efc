#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/dialogs/Dialogo.h"
#include "registers/lookup/Bautizado.h"
#include "registers/lookup/Busqueda.h"

namespace fidaleon {

struct OrigenBusqueda;

/// Shows earlier baptisms that a surname led to and takes the data of the chosen one. Runs no
/// search of its own. Set the public fields, then Show(); a cancelled dialog brings nothing.
class frmBuscaPadres : public Dialogo {
 public:
  explicit frmBuscaPadres(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  FDAPI::cCOrigen Origen{};
  /// What is shown in the caption.
  std::string strApellidos;
  std::vector<FilaBusqueda> filas;
  /// Of those whom the entry is about: 1 is the bride.
  std::size_t lngPersona = 0;

  /// A choice was accepted and its data stands below.
  bool blnAceptado = false;
  /// For a baptism: what brothers and sisters share, with the keys of their rows.
  cBautismo importado;
  /// For any other entry: the baptism chosen.
  Bautizado bautizado;

  enum Boton { ACEPTAR = 0, CANCELAR = 1, DETALLES = 2 };

  forms::Grid msgBusquedaPadres;
  forms::Grid msgBusquedaBautizado;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  forms::Grid& rejilla();
  void cargarPadres();
  void cargarBautizados();
  void aceptar();
  void detalles();

  const OrigenBusqueda* origen_ = nullptr;
};

}  // namespace fidaleon
