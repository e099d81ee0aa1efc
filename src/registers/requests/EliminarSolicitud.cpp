#include "registers/requests/EliminarSolicitud.h"

#include "core/dialogs/Guard.h"
#include "registers/common/FormaPartida.h"
#include "registers/requests/BloqueoSolicitud.h"

namespace fidaleon {

void eliminarSolicitud(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                       const Sacramento& s) {
  guarded(contexto, "cNucleo", "EliminarSolicitud", [&] {
    SesionBloqueos bloqueos(contexto, conBaseDatos);
    bloquearSolicitud(bloqueos, s, lngID);
    if (!bloqueos.efectuar()) return;
    const forms::Hourglass reloj(contexto.ui());
    const store::Recordset fila = conBaseDatos.Execute(sqlPartida(s, lngID));
    TransaccionSinVuelta transaccion(contexto, conBaseDatos, store::Removes::Yes);
    if (!fila.EOF_()) borrarFilas(conBaseDatos, *formaPartida(s), fila, Compartidas::Borrar);
    transaccion.terminar();
  });
}

}  // namespace fidaleon
