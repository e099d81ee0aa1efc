#pragma once

#include <memory>
#include <string>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"
#include "forms/Form.h"

namespace fidaleon {

/// The entry dialog of a sacrament as the operations see it.
class DialogoPartida {
 public:
  /// What the operations tell a dialog; an identity of 0 and an empty Origen are not told.
  struct Apertura {
    std::int32_t lngID = 0;
    FDAPI::cCOperacion Operacion{};
    FDAPI::cCOrigen Origen{};
  };

  virtual ~DialogoPartida() = default;
  virtual void preparar(FDAPI::Conexion& conBaseDatos, const Apertura& apertura) = 0;
  virtual forms::Form& formulario() = 0;
  /// The dialog's field for the text of the clipboard.
  virtual std::string& portapapeles() = 0;
};

using CrearDialogoPartida = std::unique_ptr<DialogoPartida> (*)(Contexto&);

/// Null for no sacrament and for one that has no dialog.
CrearDialogoPartida dialogoDePartida(const Sacramento* sacramento);

}  // namespace fidaleon
