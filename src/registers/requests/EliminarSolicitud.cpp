#include "registers/requests/EliminarSolicitud.h"

#include "core/contract/Guard.h"
#include "core/contract/Sentencia.h"
#include "registers/common/FilasDePartida.h"
#include "registers/requests/BloqueoSolicitud.h"

namespace fidaleon {

void eliminarSolicitud(Contexto& contexto, FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                       const Sacramento& sacramento) {
  guarded(contexto, "cNucleo", "EliminarSolicitud", [&] {
    SesionBloqueos bloqueos(contexto, conBaseDatos);
    bloquearSolicitud(bloqueos, sacramento, lngID);
    if (!bloqueos.efectuar()) return;
    const forms::Hourglass reloj(contexto.ui());
    const store::Recordset fila =
        conBaseDatos.Execute(sentencia(sacramento, "SELECT * FROM {partidas} WHERE {idpartida}=") +
                             std::to_string(lngID));
    TransaccionSinVuelta transaccion(contexto, conBaseDatos);
    if (!fila.EOF_()) borrarFilas(conBaseDatos, sacramento, fila);
    transaccion.terminar();
  });
}

}  // namespace fidaleon
