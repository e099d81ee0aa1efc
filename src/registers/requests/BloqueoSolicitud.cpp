#include "registers/requests/BloqueoSolicitud.h"

#include <string>

#include "core/statements/Sentencia.h"

namespace fidaleon {

void bloquearSolicitud(SesionBloqueos& sesion, const Sacramento& sacramento, std::int32_t lngID) {
  sesion.registro(sacramento.tablaPartidas, lngID,
                  sentencia(sacramento, "SELECT {IDPartida} FROM {Partidas} WHERE {IDPartida}=") +
                      std::to_string(lngID) + " AND CodLibro=0",
                  "Esta solicitud ya no está: otro puesto la ha pasado a un libro o la ha "
                  "eliminado. Actualice la lista.");
}

}  // namespace fidaleon
