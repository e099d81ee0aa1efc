#include "census/Operaciones.h"

namespace fidaleon::censo {

void NuevaActividad(Contexto&, FDAPI::Conexion&, bool, cCOrigen) {}

void EditaActividad(Contexto&, FDAPI::Conexion&, std::int32_t, bool, cCOrigen) {}

void EliminaActividad(Contexto&, FDAPI::Conexion&, std::int32_t) {}

}  // namespace fidaleon::censo
