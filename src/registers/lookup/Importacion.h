#pragma once

#include <cstdint>
#include <span>

#include "registers/confirmation/cConfirmacion.h"
#include "registers/death/cDefuncion.h"
#include "registers/lookup/Bautizado.h"
#include "registers/marriage/cMatrimonio.h"

namespace fidaleon {

// What each register takes over from a baptism.

/// Baptism, birth, parents and address.
std::span<const ParImportado<cConfirmacion>> importadoDeConfirmacion();
/// The same for the groom (0) and the bride (1).
std::span<const ParImportado<cMatrimonio, 2>> importadoDeMatrimonio();
/// Birth and parents.
std::span<const ParImportado<cDefuncion>> importadoDeDefuncion();

/// What brothers and sisters share, with the keys of the parents' rows and of the marriage's, and
/// nothing else. Throws when one of them is gone. Empty texts come as "---".
cBautismo leerFamilia(FDAPI::Conexion& conexion, std::int32_t idBautismo);
/// Copies that without the keys.
void copiarFamilia(const cBautismo& de, cBautismo& a);

}  // namespace fidaleon
