#include "core/facade/Operacion.h"

#include "core/statements/Sentencia.h"

namespace fidaleon {

bool mostrarPartida(Contexto& contexto, frmPartida& dialogo, FDAPI::Conexion& conBaseDatos,
                    const AperturaPartida& apertura, const std::optional<forms::ReadOnly>& aviso) {
  dialogo.conBaseDatos = &conBaseDatos;
  dialogo.lngID = apertura.lngID;
  dialogo.Operacion = apertura.Operacion;
  dialogo.Origen = apertura.Origen;
  const std::string portapapeles = contexto.ui().clipboardText();
  if (!portapapeles.empty()) dialogo.strPortapapeles = portapapeles;
  dialogo.Load();
  if (contexto.ui().clipboardText().empty() && !dialogo.strPortapapeles.empty())
    contexto.ui().setClipboardText(dialogo.strPortapapeles);
  return dialogo.open(aviso);
}

std::string existePartida(const Sacramento& sacramento, std::int32_t id) {
  return sentencia(sacramento, "SELECT {IDPartida} FROM {Partidas} WHERE {IDPartida}=") +
         std::to_string(id);
}

}  // namespace fidaleon
