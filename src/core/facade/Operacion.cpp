#include "core/facade/Operacion.h"

#include "core/statements/Sentencia.h"

namespace fidaleon {

bool mostrarPartida(Contexto& contexto, DialogoPartida& dialogo, FDAPI::Conexion& conBaseDatos,
                    const DialogoPartida::Apertura& apertura,
                    const std::optional<forms::ReadOnly>& aviso) {
  dialogo.preparar(conBaseDatos, apertura);
  const std::string portapapeles = contexto.ui().clipboardText();
  if (!portapapeles.empty()) dialogo.portapapeles() = portapapeles;
  dialogo.formulario().Load();
  if (contexto.ui().clipboardText().empty() && !dialogo.portapapeles().empty())
    contexto.ui().setClipboardText(dialogo.portapapeles());
  return dialogo.formulario().open(aviso);
}

std::string existePartida(const Sacramento& sacramento, std::int32_t id) {
  return sentencia(sacramento, "SELECT {IDPartida} FROM {Partidas} WHERE {IDPartida}=") +
         std::to_string(id);
}

}  // namespace fidaleon
