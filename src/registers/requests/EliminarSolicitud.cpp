#include "registers/requests/EliminarSolicitud.h"

#include "core/contract/Guard.h"
#include "registers/baptism/FilasBautismo.h"
#include "registers/common/Bloqueos.h"

namespace fidaleon {

void eliminarSolicitudBautismo(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                               std::int32_t lngID) {
  guarded(contexto, "cNucleo", "EliminarSolicitud", [&] {
    const auto sesion = abrirSesion(contexto, conBaseDatos);
    sesion->DefinirBloqueo(bloqueoDeRegistro(conBaseDatos, "Bautismo", "IDBautismo", lngID));
    if (sesion->lngEfectuarBloqueos() != 0) return;
    {
      const forms::Hourglass reloj(contexto.ui());
      borrarFilasBautismo(conBaseDatos, lngID);
    }
    sesion->LiberarBloqueos();
  });
}

}  // namespace fidaleon
