// Inserting a baptism, and walking a collection that does.

#include "registers/baptism/TablasBautismo.h"
#include "registers/cBaseDatos.h"
#include "registers/common/GuardarEntera.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::Conexion;

namespace {

bool pendiente(const cBautismo& item) {
  const bool seBorra = item.Operacion == cCOperacion::Borrar;
  if (!item.Estado) return !seBorra || item.IDBautismo != 0;
  return seBorra || item.Operacion == cCOperacion::EDITAR ||
         item.Operacion == cCOperacion::EDITARSOLICITUD;
}

/// Whether the entry with this key is what a failed storing left: there, and without a child. It
/// may have been completed or removed since, when a draft brought the key back.
bool quedoAMedias(Conexion& conexion, std::int32_t clave) {
  const std::string id = std::to_string(clave);
  return clave != 0 &&
         !conexion.Execute("SELECT IDBautismo FROM Bautismo WHERE IDBautismo=" + id).EOF_() &&
         conexion.Execute("SELECT CodBautismo FROM Bautismo_Hijo WHERE CodBautismo=" + id).EOF_();
}

std::int32_t claveNueva(Conexion& conexion, const std::string& sql, const std::string& texto) {
  return static_cast<std::int32_t>(conexion.Execute(sql + entreComillas(texto)).integer("ID"));
}

}  // namespace

void cBaseDatos::insertarPadres(Conexion& conBaseDatos, cBautismo& record) {
  TransaccionSinVuelta transaccion(contexto_, conBaseDatos);
  conBaseDatos.Execute(sqlInsertar(TABLA_PADRES, record));
  conBaseDatos.Execute(sqlInsertar(TABLA_MADRES, record));
  conBaseDatos.Execute(sqlInsertar(TABLA_MATRIMONIO, record));
  if (lngIDPadres_ == 0)
    lngIDPadres_ = claveNueva(
        conBaseDatos,
        "SELECT MAX(IDPadres) AS ID FROM bautismo_padres WHERE Nombre = ", record.NombrePadres);
  if (lngIDMadres_ == 0)
    lngIDMadres_ = claveNueva(
        conBaseDatos,
        "SELECT MAX(IDMadres) AS ID FROM bautismo_madres WHERE Nombre = ", record.NombreMadres);
  if (lngIDMatrimonio_ == 0)
    lngIDMatrimonio_ = claveNueva(
        conBaseDatos, "SELECT MAX(IDMatrimonio) AS ID FROM bautismo_matrimonio WHERE Parroquia = ",
        record.ParroquiaMatrimonio);
  transaccion.terminar();
}

void cBaseDatos::insertarPartida(Conexion& conBaseDatos, cBautismo& record) {
  insertarPadres(conBaseDatos, record);
  record.CodPadres = lngIDPadres_;
  record.CodMadres = lngIDMadres_;
  record.CodMatrimonio = lngIDMatrimonio_;
  if (record.EdadPadrino.empty()) record.EdadPadrino = "0";
  if (record.EdadMadrina.empty()) record.EdadMadrina = "0";
  conBaseDatos.Execute(sqlInsertar(TABLA_BAUTISMO, record));
  record.IDBautismo = static_cast<std::int32_t>(
      conBaseDatos.Execute("SELECT * FROM bautismo ORDER BY idbautismo DESC")
          .integer("idbautismo"));
}

bool cBaseDatos::AltaPartidaBautismo(Conexion& conBaseDatos, cBautismo& record) {
  const bool empezada = quedoAMedias(conBaseDatos, record.IDBautismo);
  const auto tomarClaves = [&record] {
    record.CodBautismo = record.IDBautismo;
    record.IDPadres = record.CodPadres;
    record.IDMadres = record.CodMadres;
    record.IDMatrimonio = record.CodMatrimonio;
  };
  if (empezada) {
    tomarClaves();
    record.CambioPadre = record.CambioMadre = record.CambioMatrimonio = true;
    if (!ActualizarPartidaBautismo(conBaseDatos, record)) return false;
  }
  return guarded(contexto_, "cBaseDatos", "AltaPartidaBautismo", [&] {
    if (!empezada) insertarPartida(conBaseDatos, record);
    tomarClaves();
    conBaseDatos.Execute(sqlInsertar(TABLA_HIJO, record));
  });
}

bool cBaseDatos::GrabarColeccionBasesDatos(Conexion& conBaseDatos, ColeccionBautismo& colPartidas,
                                           bool& blnSalto) {
  const forms::Hourglass reloj(contexto_.ui());
  for (cBautismo& item : colPartidas) {
    if (!pendiente(item)) continue;
    lngIDPadres_ = lngIDMadres_ = lngIDMatrimonio_ = 0;
    if (!guardarEntera(contexto_, conBaseDatos, "GrabarColeccionBasesDatos", item,
                       [&](cBautismo& b) { return guardar(conBaseDatos, b, blnSalto); }))
      return false;
  }
  return true;
}

bool cBaseDatos::RetirarAMedias(Conexion& conBaseDatos, ColeccionBautismo& colPartidas) {
  bool retiradas = true;
  for (cBautismo& item : colPartidas) {
    if (item.Estado || item.IDBautismo == 0) continue;
    item.Operacion = cCOperacion::Borrar;
    bool blnSalto = false;
    retiradas = guardarEntera(contexto_, conBaseDatos, "RetirarAMedias", item,
                              [&](cBautismo& b) { return guardar(conBaseDatos, b, blnSalto); }) &&
                retiradas;
  }
  return retiradas;
}

bool cBaseDatos::guardar(Conexion& conBaseDatos, cBautismo& partida, bool& blnSalto) {
  const auto hecho = [&](bool estado) {
    partida.Estado = estado;
    if (partida.Operacion != cCOperacion::Borrar) partida.Operacion = {};
    return true;
  };
  if (partida.Estado) {
    switch (partida.Operacion) {
      case cCOperacion::EDITAR:
      case cCOperacion::EDITARSOLICITUD:
        return ActualizarPartidaBautismo(conBaseDatos, partida) && hecho(true);
      case cCOperacion::Borrar:
        if (!BorrarPartidaBautismo(conBaseDatos, partida.IDBautismo)) return false;
        partida.IDBautismo = 0;
        return hecho(false);
      default:
        return true;
    }
  }
  // It has a key when a former try stored it without its child.
  if (partida.Operacion == cCOperacion::Borrar) {
    if (quedoAMedias(conBaseDatos, partida.IDBautismo) &&
        !BorrarPartidaBautismo(conBaseDatos, partida.IDBautismo))
      return false;
    partida.IDBautismo = 0;
    return true;
  }
  const bool antiguo = partida.Operacion == cCOperacion::ANTIGUA ||
                       (partida.CodLibroBautismo != 0 &&
                        !conBaseDatos
                             .Execute("SELECT nuevo FROM Libro_Bautismo WHERE idlibrobautismo=" +
                                      std::to_string(partida.CodLibroBautismo))
                             .flag("nuevo"));
  if (!AltaPartidaBautismo(conBaseDatos, partida)) return false;
  hecho(true);
  return !antiguo || ActualizacionFormatoBautismo(conBaseDatos, partida, blnSalto);
}

}  // namespace fidaleon
