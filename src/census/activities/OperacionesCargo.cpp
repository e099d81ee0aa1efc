#include "census/Operaciones.h"
#include "census/activities/frmCargo.h"
#include "census/common/Eliminacion.h"
#include "core/contract/SesionBloqueos.h"

namespace fidaleon::censo {

using FDAPI::cCOperacion;

// Each call has a dialog of its own: it can stand over another of its kind.
void NuevoCargo(Contexto& contexto, FDAPI::Conexion& conexion, bool) {
  SesionBloqueos sesion(contexto, conexion);
  sesion.tabla("Cargo");
  if (!sesion.efectuar()) return;
  frmCargo dialogo(contexto);
  dialogo.conBaseDatos = &conexion;
  dialogo.Operacion = cCOperacion::ANADIR;
  dialogo.Show();
}

void EditaCargo(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  SesionBloqueos sesion(contexto, conexion);
  sesion.registroPorClave("Cargo", "IdCargo", id);
  sesion.mostrar(sesion.efectuarParaFicha(), [&](const auto& aviso) {
    frmCargo dialogo(contexto);
    dialogo.conBaseDatos = &conexion;
    dialogo.Operacion = cCOperacion::EDITAR;
    dialogo.IDCargo = id;
    return dialogo.open(aviso);
  });
}

void EliminaCargo(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  if (!preguntarEliminacion(contexto, "un", "Cargo", nombreDe(conexion, "Cargo", id))) return;
  SesionBloqueos sesion(contexto, conexion);
  sesion.registroPorClave("Cargo", "IdCargo", id);
  if (!sesion.efectuar()) return;
  const std::string cargo = std::to_string(id);
  const forms::Hourglass reloj(contexto.ui());
  Eliminacion eliminacion(contexto, conexion, "Eliminando cargo ...", 2);
  eliminacion.paso("DELETE * FROM Cargo WHERE IDCargo=" + cargo);
  eliminacion.paso("DELETE * FROM Padron_Actividad WHERE CodCargo=" + cargo);
  eliminacion.terminar();
}

}  // namespace fidaleon::censo
