#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// Parish, town and diocese of the groom's residence, then the bride's.
using DatosExhorto = std::array<std::string, 6>;

/// Asks for the parishes that an exhorto of banns goes to. `strDatos` takes what stood in the
/// boxes, also when the user has cancelled. `bloquear` takes the entry before what was typed is
/// stored with it, and without it nothing is; a caller who holds the entry gives none.
void CargaDatosExhorto(Contexto& contexto, DatosExhorto& strDatos, bool& blnCancelar,
                       FDAPI::Conexion& conFidaleon, std::int16_t lngID,
                       const std::function<bool()>& bloquear = {});

}  // namespace fidaleon
