#include "registers/common/EliminarPartida.h"

#include "core/contract/SesionBloqueos.h"
#include "core/dialogs/Guard.h"
#include "core/statements/Sentencia.h"
#include "registers/common/FormaPartida.h"

namespace fidaleon {

using FDAPI::Conexion;

namespace {

constexpr const char* NO_SE_PUEDE = "¡Esta partida no se puede eliminar!";

/// Why the entry may not go; empty when it may. `libro` stands on its book, which is new.
std::string motivoParaNoEliminar(Conexion& conexion, std::int32_t lngID,
                                 const Sacramento& sacramento, const std::string& codLibro,
                                 const store::Recordset& libro) {
  if (libro.flag("Cerrado"))
    return "El libro está cerrado: de un libro cerrado no se elimina ninguna partida.";
  store::Recordset partidas = conexion.Execute(
      sentencia(sacramento, "SELECT {IDPartida} FROM {Partidas} WHERE CodLibro = ") + codLibro +
      " ORDER BY Folio, Val(Numero)");
  if (!partidas.EOF_()) partidas.MoveLast();
  if (!partidas.EOF_() && partidas.integer(sacramento.clavePartida) == lngID) return {};
  return "De un libro nuevo solo se puede eliminar la última partida. Esta puede anularse: "
         "conservará su folio y su número.";
}

bool sePuedeEliminar(Contexto& contexto, Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento) {
  const store::Recordset partida = conBaseDatos.Execute(
      sentencia(sacramento, "SELECT codlibro FROM {partidas} WHERE {idpartida}=") +
      std::to_string(lngID));
  if (partida.EOF_()) return false;
  const std::string codLibro = partida.text("codlibro");
  const store::Recordset libro = conBaseDatos.Execute(
      sentencia(sacramento, "SELECT Nuevo, Cerrado FROM {Libros} WHERE {idlibro}=") + codLibro);
  if (libro.EOF_()) return false;
  if (!libro.flag("Nuevo")) return true;
  const std::string motivo = motivoParaNoEliminar(conBaseDatos, lngID, sacramento, codLibro, libro);
  if (motivo.empty()) return true;
  forms::warn(contexto.ui(), NO_SE_PUEDE, forms::MsgIcon::Exclamation, motivo);
  return false;
}

/// Only a test: the lock itself is taken when the user has agreed.
bool existeYEstaLibre(Contexto& contexto, Conexion& conexion, std::int32_t lngID,
                      const Sacramento& sacramento) {
  SesionBloqueos bloqueos(contexto, conexion);
  bloqueos.registroPorClave(sacramento.tablaPartidas, sacramento.clavePartida, lngID);
  return bloqueos.comprobar();
}

}  // namespace

void borrarPreguntando(Contexto& contexto, Conexion& conBaseDatos, std::int32_t lngID,
                       const Sacramento& s, const PermisoEliminar& permiso) {
  guarded(contexto, "cNucleo", std::string("BorrarPartida") + s.palabra, [&] {
    SesionBloqueos bloqueos(contexto, conBaseDatos);
    if (!forms::ask(contexto.ui(), "¿Está seguro que desea eliminar la partida?", {},
                    forms::Stake::Loss, nombrePartida(conBaseDatos, s, lngID)))
      return;
    bloqueos.registroPorClave(s.tablaPartidas, s.clavePartida, lngID);
    bloqueos.registros(
        s.tablaLibros,
        sentencia(s, "SELECT codLibro FROM {Partidas} WHERE {IDPartida}=") + std::to_string(lngID));
    // Another desk may have added an entry or closed the book while the question stood.
    if (!bloqueos.efectuar() || (permiso && !permiso())) return;
    const forms::Hourglass reloj(contexto.ui());
    TransaccionSinVuelta transaccion(contexto, conBaseDatos, store::Removes::Yes);
    borrarPartida(conBaseDatos, *formaPartida(s), lngID, Compartidas::Borrar);
    transaccion.terminar();
  });
}

void eliminarPartida(Contexto& contexto, Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento) {
  guarded(contexto, "cNucleo", "EliminarPartida", [&] {
    if (!existeYEstaLibre(contexto, conBaseDatos, lngID, sacramento)) return;
    const PermisoEliminar permiso = [&] {
      return sePuedeEliminar(contexto, conBaseDatos, lngID, sacramento);
    };
    if (permiso()) borrarPreguntando(contexto, conBaseDatos, lngID, sacramento, permiso);
  });
}

}  // namespace fidaleon
