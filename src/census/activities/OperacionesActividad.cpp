#include <vector>

#include "census/Operaciones.h"
#include "census/activities/frmActividad.h"
#include "census/common/Eliminacion.h"
#include "core/contract/SesionBloqueos.h"

namespace fidaleon::censo {

using FDAPI::cCOperacion;

namespace {

void prepararActividad(frmActividad& dialogo, FDAPI::Conexion& conexion, cCOperacion operacion,
                       bool blnOcultar, cCOrigen origen) {
  dialogo.conBaseDatos = &conexion;
  dialogo.Operacion = operacion;
  dialogo.blnOcultar = blnOcultar;
  dialogo.Origen = origen;
}

std::vector<std::string> gruposDe(FDAPI::Conexion& conexion, const std::string& actividad) {
  std::vector<std::string> grupos;
  for (store::Recordset rs =
           conexion.Execute("SELECT IDGrupo FROM Grupo WHERE CodActividad=" + actividad);
       !rs.EOF_(); rs.MoveNext())
    grupos.push_back(rs.text("IDGrupo"));
  return grupos;
}

}  // namespace

void NuevaActividad(Contexto& contexto, FDAPI::Conexion& conexion, bool blnOcultar,
                    cCOrigen origen) {
  SesionBloqueos sesion(contexto, conexion);
  sesion.tabla("Actividad");
  sesion.tablasCompartidas({"Institucion"});
  if (!sesion.efectuar()) return;
  frmActividad dialogo(contexto);
  prepararActividad(dialogo, conexion, cCOperacion::ANADIR, blnOcultar, origen);
  dialogo.Show();
}

void EditaActividad(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id, bool blnOcultar,
                    cCOrigen origen) {
  SesionBloqueos sesion(contexto, conexion);
  sesion.registroPorClave("Actividad", "IdActividad", id);
  sesion.tablasCompartidas({"Institucion"});
  sesion.mostrar(sesion.efectuarParaFicha(), [&](const auto& aviso) {
    frmActividad dialogo(contexto);
    prepararActividad(dialogo, conexion, cCOperacion::EDITAR, blnOcultar, origen);
    dialogo.IDActividad = id;
    return dialogo.open(aviso);
  });
}

void EliminaActividad(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  if (!preguntarEliminacion(contexto, "una", "Actividad", nombreDe(conexion, "Actividad", id)))
    return;
  SesionBloqueos sesion(contexto, conexion);
  sesion.registroPorClave("Actividad", "IdActividad", id);
  if (!sesion.efectuar()) return;
  const std::string actividad = std::to_string(id);
  const std::vector<std::string> grupos = gruposDe(conexion, actividad);
  const forms::Hourglass reloj(contexto.ui());
  Eliminacion eliminacion(contexto, conexion, "Eliminando actividad ...",
                          3 + static_cast<std::int64_t>(grupos.size()));
  eliminacion.paso("DELETE * FROM Actividad WHERE IDActividad=" + actividad);
  for (const std::string& grupo : grupos) {
    if (conexion.Execute("SELECT * FROM Padron_Actividad WHERE CodGrupo=" + grupo).EOF_())
      eliminacion.pasoSinTrabajo();
    else
      eliminacion.paso("DELETE * FROM Padron_Actividad WHERE CodGrupo= " + grupo);
  }
  eliminacion.paso("DELETE * FROM Grupo WHERE CodActividad= " + actividad);
  eliminacion.pasoSinTrabajo();  // the third step is the end itself
  eliminacion.terminar();
}

}  // namespace fidaleon::censo
