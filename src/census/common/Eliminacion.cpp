#include "census/common/Eliminacion.h"

#include "core/contract/NombreYApellidos.h"

namespace fidaleon {

Eliminacion::Eliminacion(Contexto& contexto, FDAPI::Conexion& conexion, const std::string& mensaje,
                         std::int64_t pasos)
    : conexion_(conexion),
      reloj_(contexto.ui()),
      fidaleon_(contexto.fidaleon()),
      transaccion_(conexion, store::Removes::Yes) {
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
                          const std::string& nombre, const std::string& cual) {
  const bool una = articulo == "una";
  const std::string pregunta =
      "ADVERTENCIA:\nSe propone eliminar " + articulo + " " + nombre +
      ". Si lo hace, perderá todos los  \ndatos que " + (una ? "esta" : "este") +
      " tenga relacionados.\n\n¿Está seguro de querer eliminar " + (una ? "la " : "el ") + nombre +
      " junto con todos sus \ndatos relacionados?";
  return forms::ask(contexto.ui(), pregunta, {}, forms::Stake::Loss, cual);
}

std::string nombrePersona(FDAPI::Conexion& conexion, std::int32_t id) {
  const store::Recordset fila = conexion.Execute(
      "SELECT Nombre, PrimerApellido, SegundoApellido, DNI FROM Padron WHERE IDPadron=" +
      std::to_string(id));
  if (fila.EOF_()) return {};
  const std::string dni = text::trim(fila.text("DNI"));
  return nombreYApellidos(fila) + (dni.empty() ? "" : ", NIF " + dni);
}

std::string nombreDe(FDAPI::Conexion& conexion, const char* tabla, std::int32_t id) {
  const store::Recordset fila = conexion.Execute(std::string("SELECT Nombre FROM ") + tabla +
                                                 " WHERE ID" + tabla + "=" + std::to_string(id));
  return fila.EOF_() ? std::string() : fila.text("Nombre");
}

}  // namespace fidaleon
