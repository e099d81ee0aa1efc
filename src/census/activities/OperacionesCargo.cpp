#include "census/Operaciones.h"

namespace fidaleon::censo {

void NuevoCargo(Contexto&, FDAPI::Conexion&, bool) {}

void EditaCargo(Contexto&, FDAPI::Conexion&, std::int32_t) {}

void EliminaCargo(Contexto&, FDAPI::Conexion&, std::int32_t) {}

}  // namespace fidaleon::censo
