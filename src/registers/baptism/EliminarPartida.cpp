#include "registers/baptism/EliminarPartida.h"

#include "core/contract/NombreYApellidos.h"
#include "core/contract/SesionBloqueos.h"
#include "core/dialogs/Guard.h"
#include "core/statements/Sentencia.h"
#include "registers/baptism/FilasBautismo.h"

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

std::string nombrePartidaBautismo(Conexion& conBaseDatos, std::int32_t lngID) {
  const std::string id = std::to_string(lngID);
  const store::Recordset hijo = conBaseDatos.Execute(
      "SELECT Nombre, PrimerApellido, SegundoApellido FROM Bautismo_Hijo WHERE CodBautismo=" + id);
  const std::string nombre = hijo.EOF_() ? std::string() : nombreYApellidos(hijo);
  const store::Recordset sitio = conBaseDatos.Execute(
      "SELECT Libro_Bautismo.Nombre, Bautismo.Folio, Bautismo.Numero FROM Bautismo INNER JOIN "
      "Libro_Bautismo ON Libro_Bautismo.IDLibroBautismo=Bautismo.CodLibro WHERE IDBautismo=" +
      id);
  if (sitio.EOF_()) return nombre;
  return nombre + "\n" + sitio.text("Nombre") + ", folio " + sitio.text("Folio") + ", número " +
         sitio.text("Numero");
}

void borrarFilasBautismo(Conexion& conBaseDatos, const store::Recordset& bautismo) {
  const std::string id = bautismo.text("idbautismo");
  const std::string madres = bautismo.text("codmadres");
  const std::string padres = bautismo.text("codpadres");
  const std::string matrimonio = bautismo.text("codmatrimonio");
  conBaseDatos.Execute("DELETE * FROM Bautismo_Madres WHERE idmadres=" + madres);
  conBaseDatos.Execute("DELETE * FROM bautismo_padres WHERE idpadres=" + padres);
  conBaseDatos.Execute("DELETE * FROM bautismo_matrimonio WHERE idmatrimonio=" + matrimonio);
  conBaseDatos.Execute("DELETE * FROM bautismo_hijo WHERE codbautismo=" + id);
  conBaseDatos.Execute("DELETE * FROM bautismo WHERE idbautismo=" + id);
}

void borrarPartidaBautismo(Contexto& contexto, Conexion& conBaseDatos, std::int32_t lngID,
                           const PermisoEliminar& permiso) {
  guarded(contexto, "cNucleo", "BorrarPartidaBautismo", [&] {
    SesionBloqueos bloqueos(contexto, conBaseDatos);
    if (!forms::ask(contexto.ui(), "¿Está seguro que desea eliminar la partida?", {},
                    forms::Stake::Loss, nombrePartidaBautismo(conBaseDatos, lngID)))
      return;
    const std::string id = std::to_string(lngID);
    bloqueos.registroPorClave("Bautismo", "IdBautismo", lngID);
    bloqueos.registros("Libro_Bautismo", "SELECT codLibro FROM Bautismo WHERE IDBautismo=" + id);
    // Another desk may have added an entry or closed the book while the question stood.
    if (!bloqueos.efectuar() || (permiso && !permiso())) return;
    const forms::Hourglass reloj(contexto.ui());
    TransaccionSinVuelta transaccion(contexto, conBaseDatos);
    const store::Recordset fila =
        conBaseDatos.Execute("SELECT * FROM bautismo WHERE idbautismo=" + id);
    conBaseDatos.Execute(
        "UPDATE Libro_Bautismo SET FolioSiguiente = 1, NumeroSiguiente = 1 WHERE "
        "IDLibroBautismo = " +
        fila.text("CodLibro"));
    borrarFilasBautismo(conBaseDatos, fila);
    transaccion.terminar();
  });
}

void eliminarPartida(Contexto& contexto, Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento,
                     const std::function<void(const PermisoEliminar&)>& borrar) {
  guarded(contexto, "cNucleo", "EliminarPartida", [&] {
    if (!existeYEstaLibre(contexto, conBaseDatos, lngID, sacramento)) return;
    const PermisoEliminar permiso = [&] {
      return sePuedeEliminar(contexto, conBaseDatos, lngID, sacramento);
    };
    if (permiso()) borrar(permiso);
  });
}

}  // namespace fidaleon
