#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "core/dialogs/Dialogo.h"
#include "core/lists/Elecciones.h"
#include "registers/repair/PartidasIncompletas.h"

namespace fidaleon {

/// What lists do not show for want of a row or of an institution, to be completed or removed one by
/// one. Does not show itself when there is nothing, and closes with the last one. Takes its locks
/// for each act.
class frmPartidasIncompletas : public Dialogo {
 public:
  explicit frmPartidasIncompletas(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// Opens an entry that has all its rows again, so that they can be filled in.
  std::function<void(const PartidaIncompleta&)> abrir;

  enum Boton { COMPLETAR, ELIMINAR, CERRAR };

  forms::Label lblExplicacion;
  forms::Grid msgPartidas;
  forms::ComboBox cboInstitucion;  // for what has none
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void CargarGrid();
  void cargarInstituciones();
  void mostrarInstitucion();
  void completar();
  void eliminar();
  /// Runs `acto` on the chosen entry as it is under the lock.
  void conElegida(const char* procedimiento,
                  const std::function<void(const PartidaIncompleta&)>& acto);
  /// Whether what has no institution can be given the chosen one; the user is told why not.
  bool hayInstitucion(const PartidaIncompleta& para);
  bool sigueIncompleta(const PartidaIncompleta& elegida, PartidaIncompleta& ahora);

  std::vector<PartidaIncompleta> partidas_;
  std::optional<Elecciones> elecciones_;
};

}  // namespace fidaleon
