// The other operations of the store on baptisms: list, fill, update, delete, annul.

#include "core/dialogs/Guard.h"
#include "registers/allocation/ActualizacionFormato.h"
#include "registers/baptism/TablasBautismo.h"
#include "registers/cBaseDatos.h"

namespace fidaleon {

using FDAPI::Conexion;

namespace {

constexpr const char* SQL_LISTA =
    "SELECT Bautismo.IDBautismo, Bautismo.Folio as Folio, Bautismo.Numero, "
    "Bautismo.FechaBautismo, Bautismo.Anulada, Bautismo_Hijo.Nombre, "
    "Bautismo_Hijo.PrimerApellido, Bautismo_Hijo.SegundoApellido FROM Bautismo, Bautismo_Hijo, "
    "Bautismo_Madres, Bautismo_Padres, Bautismo_Matrimonio, Libro_Bautismo WHERE CodLibro=";
constexpr const char* SQL_LISTA_FIN =
    " AND idBautismo=codBautismo AND IdLibroBautismo=CodLibro AND "
    "Bautismo_Madres.IDMadres=Bautismo.CodMadres AND "
    "Bautismo_Padres.IDPadres=Bautismo.CodPadres AND "
    "Bautismo_Matrimonio.IDMatrimonio=Bautismo.CodMatrimonio "
    "ORDER BY Folio, Val(Numero), IDBautismo";

// Positions of the columns of the list.
enum ColumnaLista { ID, FOLIO, NUMERO, FECHA, ANULADA, NOMBRE, APELLIDO1, APELLIDO2 };

std::string campo(const store::Recordset& fila, ColumnaLista columna) {
  return fila.Fields(columna).Value().text();
}

cBautismo itemDeLista(const store::Recordset& fila) {
  cBautismo item;
  item.IDBautismo = static_cast<std::int32_t>(fila.Fields(ID).Value().integer());
  item.FolioBautismo = campo(fila, FOLIO);
  item.NumeroBautismo = campo(fila, NUMERO);
  item.FechaBautismo = campo(fila, FECHA);
  item.AnuladaBautismo = fila.Fields(ANULADA).Value().flag();
  item.NombreHijo = campo(fila, NOMBRE);
  item.PrimerApellidoHijo = campo(fila, APELLIDO1);
  item.SegundoApellidoHijo = campo(fila, APELLIDO2);
  item.Estado = true;
  return item;
}

/// Deletes a shared row unless another entry points to it.
void borrarSiNadieLaUsa(Conexion& conexion, const std::string& enlace, const std::string& tabla,
                        const std::string& clave, const std::string& valor, const std::string& id) {
  const bool otra = !conexion
                         .Execute("SELECT * FROM bautismo WHERE " + enlace + "=" + valor +
                                  " AND idbautismo<>" + id)
                         .EOF_();
  if (!otra) conexion.Execute("DELETE * FROM " + tabla + " WHERE " + clave + "=" + valor);
}

}  // namespace

bool cBaseDatos::GrabarBasedatosColeccion(Conexion& conBaseDatos, std::int32_t lngLibro,
                                          ColeccionBautismo& result) {
  result.clear();
  try {
    const forms::Hourglass reloj(contexto_.ui());
    store::Recordset filas =
        conBaseDatos.Execute(SQL_LISTA + std::to_string(lngLibro) + SQL_LISTA_FIN);
    for (; !filas.EOF_(); filas.MoveNext()) result.push_back(itemDeLista(filas));
    return true;
  } catch (const std::exception&) {
    forms::warn(contexto_.ui(), "¡Se ha producido un error al cargar las partidas del libro!");
    return false;
  }
}

bool cBaseDatos::ActualizarColeccion(Conexion& conBaseDatos, std::int32_t lngID,
                                     ColeccionBautismo& colPartidas, std::size_t pos) {
  bool encontrada = false;
  guarded(contexto_, "cBaseDatos", "ActualizarColeccion", [&] {
    const store::Recordset fila = conBaseDatos.Execute(sqlPartidaBautismo(lngID));
    encontrada = !fila.EOF_();
    if (encontrada) copiarPartidaBautismo(fila, colPartidas.at(pos));
  });
  return encontrada;
}

bool cBaseDatos::ActualizarPartidaBautismo(Conexion& conBaseDatos, const cBautismo& record) {
  return guarded(contexto_, "cBaseDatos", "ActualizarPartidaBautismo", [&] {
    if (record.CambioPadre)
      conBaseDatos.Execute(sqlActualizar(TABLA_PADRES, record) +
                           " WHERE idpadres=" + std::to_string(record.IDPadres));
    if (record.CambioMadre)
      conBaseDatos.Execute(sqlActualizar(TABLA_MADRES, record) +
                           " WHERE idmadres=" + std::to_string(record.IDMadres));
    if (record.CambioMatrimonio)
      conBaseDatos.Execute(sqlActualizar(TABLA_MATRIMONIO_AL_ACTUALIZAR, record) +
                           " WHERE idmatrimonio = " + std::to_string(record.IDMatrimonio));
    conBaseDatos.Execute(sqlActualizar(TABLA_BAUTISMO_AL_ACTUALIZAR, record) +
                         " WHERE IDBautismo = " + std::to_string(record.IDBautismo));
    conBaseDatos.Execute(sqlActualizar(TABLA_HIJO, record) +
                         " WHERE codbautismo=" + std::to_string(record.IDBautismo));
  });
}

bool cBaseDatos::BorrarPartidaBautismo(Conexion& conBaseDatos, std::int32_t lngID) {
  const forms::Hourglass reloj(contexto_.ui());
  return guarded(contexto_, "cBaseDatos", "BorrarPartidaBautismo", [&] {
    const std::string id = std::to_string(lngID);
    const store::Recordset fila =
        conBaseDatos.Execute("SELECT * FROM bautismo WHERE idbautismo=" + id);
    if (fila.EOF_()) return;
    conBaseDatos.Execute(
        "UPDATE Libro_Bautismo SET FolioSiguiente = 1, NumeroSiguiente = 1 WHERE "
        "IDLibroBautismo = " +
        fila.text("CodLibro"));
    borrarSiNadieLaUsa(conBaseDatos, "codmadres", "Bautismo_Madres", "idmadres",
                       fila.text("codmadres"), id);
    borrarSiNadieLaUsa(conBaseDatos, "codpadres", "bautismo_padres", "idpadres",
                       fila.text("codpadres"), id);
    borrarSiNadieLaUsa(conBaseDatos, "codmatrimonio", "bautismo_matrimonio", "idmatrimonio",
                       fila.text("codmatrimonio"), id);
    conBaseDatos.Execute("DELETE * FROM bautismo_hijo WHERE codbautismo=" + id);
    conBaseDatos.Execute("DELETE * FROM bautismo WHERE idbautismo=" + id);
  });
}

bool cBaseDatos::ActualizacionFormatoBautismo(Conexion& conBaseDatos, const cBautismo& record,
                                              bool& blnSalto) {
  return guarded(contexto_, "cBaseDatos", "ActualizacionFormatoBautismo", [&] {
    actualizacionFormato(conBaseDatos, BAUTISMO, record.CodLibroBautismo, blnSalto);
  });
}

bool cBaseDatos::AnularDesanularPar(Conexion& conBaseDatos, std::int32_t lngID) {
  return guarded(contexto_, "cBaseDatos", "AnularDesanularPar", [&] {
    const std::string id = std::to_string(lngID);
    const store::Recordset fila =
        conBaseDatos.Execute("SELECT Anulada FROM Bautismo WHERE IDBautismo=" + id);
    if (fila.EOF_()) return;
    conBaseDatos.Execute(std::string("UPDATE Bautismo SET Anulada = ") +
                         (fila.flag("Anulada") ? "0" : "1") + " WHERE IDBautismo=" + id);
  });
}

}  // namespace fidaleon
