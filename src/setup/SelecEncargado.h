#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// Asks who signs a document of the entry and with which date, and remembers the keeper as the
/// institution's last one. `Sacramento` is the word of the entry's table ("Bautismo"). Cancelled:
/// an empty keeper and today's date.
void SelecEncargado(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                    const std::string& Sacramento, std::int32_t IDPartida, std::string& strFechaInf,
                    std::string& result);

}  // namespace fidaleon
