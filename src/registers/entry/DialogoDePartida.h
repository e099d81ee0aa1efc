#pragma once

#include <memory>

#include "core/contract/Sacramento.h"
#include "registers/entry/frmPartida.h"

namespace fidaleon {

using CrearPartida = std::unique_ptr<frmPartida> (*)(Contexto&);

/// Makes the entry dialog of a sacrament. Null for no sacrament and for one that has no dialog.
CrearPartida dialogoDePartida(const Sacramento* sacramento);

}  // namespace fidaleon
