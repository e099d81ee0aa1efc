#include "census/common/Eliminacion.h"

namespace fidaleon {

Eliminacion::Eliminacion(Contexto& contexto, FDAPI::Conexion& conexion, const std::string& mensaje,
                         std::int64_t pasos)
    : conexion_(conexion),
      reloj_(contexto.ui()),
      fidaleon_(contexto.fidaleon()),
      transaccion_(conexion) {
  fidaleon_->ProgresoLoad(pasos, mensaje, 1);
}

Eliminacion::~Eliminacion() {
  try {
    fidaleon_->ProgresoUnload();
  } catch (const std::exception&) {
    // What was removed is what counts.
  }
}

void Eliminacion::paso(const std::string& sentencia) {
  conexion_.Execute(sentencia);
  pasoSinTrabajo();
}

void Eliminacion::pasoSinTrabajo() {
  fidaleon_->ProgresoRefresh(++hechos_);
}

void Eliminacion::terminar() {
  transaccion_.commit();
}

bool preguntarEliminacion(Contexto& contexto, const std::string& articulo,
                          const std::string& nombre) {
  const bool una = articulo == "una";
  return forms::ask(contexto.ui(), "ADVERTENCIA:\nSe propone eliminar " + articulo + " " + nombre +
                                       ". Si lo hace, perderá todos los  \ndatos que " +
                                       (una ? "esta" : "este") +
                                       " tenga relacionados.\n\n¿Está seguro de querer eliminar " +
                                       (una ? "la " : "el ") + nombre +
                                       " junto con todos sus \ndatos relacionados?");
}

}  // namespace fidaleon
