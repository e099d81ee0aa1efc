#pragma once

#include <string>

#include "core/facade/Operacion.h"
#include "documents/cInformes.h"

namespace fidaleon {

/// A member of cInformes that writes the document of one record.
template <class... Argumentos>
using MiembroInforme = void (cInformes::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t,
                                           Argumentos...);

/// Passes a command on to cInformes while the record is locked, for as long as the document is
/// being written. `tabla` and `clave` name the record in the spelling of the statement.
template <class... Argumentos, class... Dados>
void informe(Contexto& contexto, const char* nombre, const char* tabla, const char* clave,
             MiembroInforme<Argumentos...> miembro, FDAPI::Conexion& conFidaleon,
             FDAPI::Conexion& conInformes, std::int32_t lngID, const Dados&... argumentos) {
  operacion(contexto, nombre, [&] {
    SesionBloqueos sesion(contexto, conFidaleon);
    sesion.registro(tabla, lngID,
                    std::string("SELECT ") + clave + " FROM " + tabla + " WHERE " + clave + "=" +
                        std::to_string(lngID));
    if (!sesion.efectuar()) return;
    cInformes informes(contexto);
    (informes.*miembro)(conFidaleon, conInformes, lngID, argumentos...);
  });
}

}  // namespace fidaleon
