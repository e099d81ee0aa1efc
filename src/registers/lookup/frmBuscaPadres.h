#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/dialogs/Dialogo.h"
#include "registers/baptism/cBautismo.h"

namespace fidaleon {

struct OrigenBusqueda;

/// A row that the caller's search found.
struct FilaBusqueda {
  std::int32_t IDBautismo = 0;
  std::string Nombre;
  std::string PrimerApellido;
  std::string SegundoApellido;
  std::string FechaBautismo;
  std::int32_t CodPadres = 0;
  std::int32_t CodMadres = 0;
  std::int32_t CodMatrimonio = 0;
};

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

  /// A choice was accepted and its data stands in `importado`.
  bool blnAceptado = false;
  /// For a baptism: what brothers and sisters share, with the keys of their rows.
  cBautismo importado;

  enum Boton { ACEPTAR = 0, CANCELAR = 1, DETALLES = 2 };

  forms::Grid msgBusquedaPadres;
  forms::Grid msgBusquedaBautizado;
  forms::ControlArray<forms::Button> cmdBoton;

  // What an origin does; see its description.
  void CargarGridBautismo();
  void ImportarDatosBautismo(std::int32_t lngIDBautismo);

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  forms::Grid& rejilla();
  void aceptar();
  void detalles();

  const OrigenBusqueda* origen_ = nullptr;
};

}  // namespace fidaleon
