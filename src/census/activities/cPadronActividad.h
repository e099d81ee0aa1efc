#pragma once

#include <cstdint>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// A person in a group with an office, as the dialogs hold it until they are accepted.
struct cPadronActividad {
  std::int32_t IDActividadesPadron = 0;
  std::int32_t IDGrupo = 0;
  std::int32_t IDCargo = 0;
  bool Estado = false;             // stands in the database
  FDAPI::cCOperacion Operacion{};  // none: as it stands there
  std::int32_t IDPadron = 0;
};

}  // namespace fidaleon
