#include "census/Operaciones.h"

namespace fidaleon::censo {

void NuevoColaborador(Contexto&, FDAPI::Conexion&, bool, cCOrigen) {}

void EditaColaborador(Contexto&, FDAPI::Conexion&, std::int32_t, cCOrigen) {}

void EliminaColaborador(Contexto&, FDAPI::Conexion&, std::int32_t) {}

}  // namespace fidaleon::censo
