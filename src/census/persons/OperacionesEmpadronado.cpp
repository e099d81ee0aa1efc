#include "census/Operaciones.h"

namespace fidaleon::censo {

void NuevoEmpadronado(Contexto&, FDAPI::Conexion&) {}

void EditaEmpadronado(Contexto&, FDAPI::Conexion&, std::int32_t) {}

void EliminaEmpadronado(Contexto&, FDAPI::Conexion&, std::int32_t) {}

}  // namespace fidaleon::censo
