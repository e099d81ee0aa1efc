#pragma once

#include <cstdint>
#include <functional>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Asked with the entry as the table has it at that moment; false leaves it so.
using PreguntaAnulacion = std::function<bool(bool anulada)>;

/// Asks, takes the entry's lock and runs `alternar`, unless another desk has changed the entry
/// while the question stood: then the user is told. Without a question it asks nothing.
void anularPartida(Contexto& contexto, FDAPI::Conexion& conexion, const Sacramento& sacramento,
                   std::int32_t lngID, const PreguntaAnulacion& preguntar,
                   const std::function<void()>& alternar);

/// Tells the user that another desk has already made of the entry what was asked for.
void avisarYaEsta(forms::UserInterface& ui, bool anulada);

}  // namespace fidaleon
