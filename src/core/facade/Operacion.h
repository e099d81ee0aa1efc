#pragma once

#include <string>
#include <utility>

#include "core/contract/Sacramento.h"
#include "core/contract/SesionBloqueos.h"
#include "core/dialogs/Guard.h"
#include "registers/entry/DialogoDePartida.h"

namespace fidaleon {

/// Runs an operation of cNucleo; an error in it is reported under the operation's name.
template <class Body>
void operacion(Contexto& contexto, const char* nombre, Body&& body) {
  guarded(contexto, "cNucleo", nombre, std::forward<Body>(body));
}

/// What the operations tell a dialog.
struct AperturaPartida {
  std::int32_t lngID = 0;
  FDAPI::cCOperacion Operacion{};
  FDAPI::cCOrigen Origen{};
};

/// Fills the dialog's public fields, loads it and shows it until the user is done, to be read only
/// where there is a notice. The dialogs empty the clipboard on loading; what it held is back in it
/// when the user sees the dialog. The answer is that of Form::open.
bool mostrarPartida(Contexto& contexto, frmPartida& dialogo, FDAPI::Conexion& conBaseDatos,
                    const AperturaPartida& apertura,
                    const std::optional<forms::ReadOnly>& aviso = std::nullopt);

/// "SELECT IDBautismo FROM Bautismo WHERE IDBautismo=" and the key, for any sacrament.
std::string existePartida(const Sacramento& sacramento, std::int32_t id);

}  // namespace fidaleon
