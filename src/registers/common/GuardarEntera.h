#pragma once

#include <optional>
#include <string>
#include <utility>

#include "core/dialogs/Guard.h"

namespace fidaleon {

/// Stores an item of a collection, or takes it away, within one transaction: `guardar` does it and
/// tells whether it went through. When the store could keep nothing of it, the item is again what
/// it was.
template <class Registro, class Guardar>
bool guardarEntera(Contexto& contexto, FDAPI::Conexion& conexion, const std::string& procedimiento,
                   Registro& item, store::Removes quita, Guardar&& guardar) {
  Registro antes = item;
  bool guardada = false;
  std::optional<TransaccionSinVuelta> transaccion;
  const bool terminada = guarded(contexto, "cBaseDatos", procedimiento, [&] {
    transaccion.emplace(contexto, conexion, quita);
    guardada = guardar(item);
    transaccion->terminar();
  });
  if (!transaccion || transaccion->deshecha()) item = std::move(antes);
  return terminada && guardada;
}

}  // namespace fidaleon
