#include "registers/requests/EliminarSolicitud.h"

#include "core/dialogs/Guard.h"
#include "registers/baptism/FilasBautismo.h"
#include "registers/requests/BloqueoSolicitud.h"

namespace fidaleon {

void eliminarSolicitudBautismo(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                               std::int32_t lngID) {
  guarded(contexto, "cNucleo", "EliminarSolicitud", [&] {
    SesionBloqueos bloqueos(contexto, conBaseDatos);
    bloquearSolicitud(bloqueos, BAUTISMO, lngID);
    if (!bloqueos.efectuar()) return;
    const forms::Hourglass reloj(contexto.ui());
    const store::Recordset fila =
        conBaseDatos.Execute("SELECT * FROM bautismo WHERE idbautismo=" + std::to_string(lngID));
    TransaccionSinVuelta transaccion(contexto, conBaseDatos);
    if (!fila.EOF_()) borrarFilasBautismo(conBaseDatos, fila);
    transaccion.terminar();
  });
}

}  // namespace fidaleon
