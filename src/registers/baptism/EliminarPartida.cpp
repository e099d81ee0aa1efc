#include "registers/baptism/EliminarPartida.h"

#include "core/contract/EnSacramento.h"
#include "core/contract/Guard.h"
#include "registers/baptism/FilasBautismo.h"
#include "registers/common/Bloqueos.h"

namespace fidaleon {

using FDAPI::Conexion;

namespace {

constexpr const char* NO_SE_PUEDE = "¡Esta partida no se puede eliminar!";

bool esLaUltima(Conexion& conexion, std::int32_t lngID, const Sacramento& sacramento,
                const std::string& libro) {
  store::Recordset partidas = conexion.Execute(
      enSacramento(sacramento, "SELECT IDBautismo FROM Bautismo WHERE CodLibro = ") + libro +
      " ORDER BY Folio, Val(Numero)");
  partidas.MoveLast();
  return partidas.integer(sacramento.clavePartida) == lngID;
}

}  // namespace

void borrarFilasBautismo(Conexion& conBaseDatos, std::int32_t lngID) {
  const std::string id = std::to_string(lngID);
  const store::Recordset fila =
      conBaseDatos.Execute("SELECT * FROM bautismo WHERE idbautismo=" + id);
  if (fila.EOF_()) return;
  conBaseDatos.Execute("DELETE * FROM Bautismo_Madres WHERE idmadres=" + fila.text("codmadres"));
  conBaseDatos.Execute("DELETE * FROM bautismo_padres WHERE idpadres=" + fila.text("codpadres"));
  conBaseDatos.Execute("DELETE * FROM bautismo_matrimonio WHERE idmatrimonio=" +
                       fila.text("codmatrimonio"));
  conBaseDatos.Execute("DELETE * FROM bautismo_hijo WHERE codbautismo=" + id);
  conBaseDatos.Execute("DELETE * FROM bautismo WHERE idbautismo=" + id);
}

void borrarPartidaBautismo(Contexto& contexto, Conexion& conBaseDatos, std::int32_t lngID) {
  guarded(contexto, "cNucleo", "BorrarPartidaBautismo", [&] {
    const auto sesion = abrirSesion(contexto, conBaseDatos);
    if (!forms::ask(contexto.ui(), "¿Está seguro que desea eliminar la partida?")) return;
    const std::string id = std::to_string(lngID);
    sesion->DefinirBloqueo(bloqueoDeRegistro(conBaseDatos, "Bautismo", "IdBautismo", lngID));
    FDAPI::DefinicionBloqueo libro;
    libro.strTabla = "Libro_Bautismo";
    libro.strRegistro = "SELECT codLibro FROM Bautismo WHERE IDBautismo=" + id;
    libro.conBd = &conBaseDatos;
    sesion->DefinirBloqueo(std::move(libro));
    if (sesion->lngEfectuarBloqueos() != 0) return;
    {
      const forms::Hourglass reloj(contexto.ui());
      const store::Recordset fila =
          conBaseDatos.Execute("SELECT * FROM bautismo WHERE idbautismo=" + id);
      conBaseDatos.Execute(
          "UPDATE Libro_Bautismo SET FolioSiguiente = 1, NumeroSiguiente = 1 WHERE "
          "IDLibroBautismo = " +
          fila.text("CodLibro"));
      borrarFilasBautismo(conBaseDatos, lngID);
    }
    sesion->LiberarBloqueos();
  });
}

void eliminarPartida(Contexto& contexto, Conexion& conBaseDatos, std::int32_t lngID,
                     const Sacramento& sacramento, const std::function<void()>& borrar) {
  guarded(contexto, "cNucleo", "EliminarPartida", [&] {
    const auto sesion = abrirSesion(contexto, conBaseDatos);
    sesion->DefinirBloqueo(
        bloqueoDeRegistro(conBaseDatos, sacramento.tablaPartidas, sacramento.clavePartida, lngID));
    if (sesion->lngEfectuarBloqueos(true) != 0) return;
    const store::Recordset partida = conBaseDatos.Execute(
        enSacramento(sacramento, "SELECT codlibro FROM bautismo WHERE idbautismo=") +
        std::to_string(lngID));
    if (partida.EOF_()) return;
    const std::string codLibro = partida.text("codlibro");
    const store::Recordset libro = conBaseDatos.Execute(
        enSacramento(sacramento,
                     "SELECT Nuevo, Cerrado FROM Libro_Bautismo WHERE idlibrobautismo=") +
        codLibro);
    if (libro.EOF_()) return;
    if (!libro.flag("Nuevo")) return borrar();
    if (!libro.flag("Cerrado") && esLaUltima(conBaseDatos, lngID, sacramento, codLibro))
      return borrar();
    forms::warn(contexto.ui(), NO_SE_PUEDE);
  });
}

}  // namespace fidaleon
