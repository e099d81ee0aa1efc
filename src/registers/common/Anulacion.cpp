#include "registers/common/Anulacion.h"

#include <optional>
#include <string>

#include "core/contract/SesionBloqueos.h"
#include "core/statements/Sentencia.h"

namespace fidaleon {

namespace {

std::optional<bool> estaAnulada(FDAPI::Conexion& conexion, const Sacramento& s,
                                std::int32_t lngID) {
  const store::Recordset fila = conexion.Execute(
      sentencia(s, "SELECT Anulada FROM {Partidas} WHERE {IDPartida}=") + std::to_string(lngID));
  if (fila.EOF_()) return std::nullopt;
  return fila.flag("Anulada");
}

}  // namespace

void anularPartida(Contexto& contexto, FDAPI::Conexion& conexion, const Sacramento& sacramento,
                   std::int32_t lngID, const PreguntaAnulacion& preguntar,
                   const std::function<void()>& alternar) {
  std::optional<bool> vista;
  if (preguntar) vista = estaAnulada(conexion, sacramento, lngID);
  if (vista && !preguntar(*vista)) return;
  SesionBloqueos sesion(contexto, conexion);
  sesion.registroPorClave(sacramento.tablaPartidas, sacramento.clavePartida, lngID);
  if (!sesion.efectuar()) return;
  if (vista && estaAnulada(conexion, sacramento, lngID) != vista)
    return avisarYaEsta(contexto.ui(), !*vista);
  alternar();
}

void avisarYaEsta(forms::UserInterface& ui, bool anulada) {
  forms::warn(ui,
              std::string("Otro puesto ya ha ") + (anulada ? "anulado" : "validado") +
                  " esta partida: no se ha cambiado nada.",
              forms::MsgIcon::Information);
}

}  // namespace fidaleon
