#pragma once

#include <algorithm>
#include <cstdint>

#include "core/contract/Contexto.h"
#include "registers/baptism/AlmacenBautismo.h"
#include "registers/confirmation/AlmacenConfirmacion.h"
#include "registers/death/AlmacenDefuncion.h"
#include "registers/marriage/AlmacenMatrimonio.h"

namespace fidaleon {

/// Carries records to and from the tables of the registers, each sacrament under names of its own:
/// what they do and promise is told by Almacen.
class cBaseDatos {
 public:
  explicit cBaseDatos(Contexto& contexto) : contexto_(contexto) {}

  /// Takes back what a failed storing left without all its rows.
  bool RetirarAMedias(FDAPI::Conexion& con, ColeccionBautismo& colPartidas) {
    return bautismos(con).retirarAMedias(colPartidas);
  }
  bool RetirarAMedias(FDAPI::Conexion& con, ColeccionConfirmacion& colPartidas) {
    return confirmaciones(con).retirarAMedias(colPartidas);
  }
  bool RetirarAMedias(FDAPI::Conexion& con, ColeccionDefuncion& colPartidas) {
    return defunciones(con).retirarAMedias(colPartidas);
  }
  bool RetirarAMedias(FDAPI::Conexion& con, ColeccionMatrimonio& colPartidas) {
    return matrimonios(con).retirarAMedias(colPartidas);
  }

  // Baptism

  bool GrabarBasedatosColeccion(FDAPI::Conexion& con, std::int32_t lngLibro,
                                ColeccionBautismo& result) {
    return bautismos(con).cargar(lngLibro, result);
  }
  bool GrabarColeccionBasesDatos(FDAPI::Conexion& con, ColeccionBautismo& colPartidas,
                                 bool& blnSalto) {
    return bautismos(con).grabar(colPartidas, blnSalto);
  }
  bool AltaPartidaBautismo(FDAPI::Conexion& con, cBautismo& record) {
    return bautismos(con).alta(record);
  }
  bool ActualizarPartidaBautismo(FDAPI::Conexion& con, const cBautismo& record) {
    return bautismos(con).actualizar(record);
  }
  bool BorrarPartidaBautismo(FDAPI::Conexion& con, std::int32_t lngID) {
    return bautismos(con).borrar(lngID);
  }
  bool ActualizacionFormatoBautismo(FDAPI::Conexion& con, const cBautismo& record, bool& blnSalto) {
    return bautismos(con).formato(record, blnSalto);
  }
  /// Fills the item at `pos`, from 0.
  bool ActualizarColeccion(FDAPI::Conexion& con, std::int32_t lngID, ColeccionBautismo& colPartidas,
                           std::size_t pos) {
    return bautismos(con).completar(0, lngID, colPartidas.at(pos));
  }
  bool AnularDesanularPar(FDAPI::Conexion& con, std::int32_t lngID) {
    return bautismos(con).anular(lngID);
  }

  // Confirmation

  bool GrabarBasedatosColeccionConfirmacion(FDAPI::Conexion& con, std::int32_t lngLibro,
                                            ColeccionConfirmacion& result) {
    return confirmaciones(con).cargar(lngLibro, result);
  }
  bool GrabarColeccionBaseDatosConfirmacion(FDAPI::Conexion& con,
                                            ColeccionConfirmacion& colPartidas, bool& blnSalto) {
    return confirmaciones(con).grabar(colPartidas, blnSalto);
  }
  bool AltaPartidaConfirmacion(FDAPI::Conexion& con, cConfirmacion& record) {
    return confirmaciones(con).alta(record);
  }
  bool ActualizarPartidaConfirmacion(FDAPI::Conexion& con, const cConfirmacion& record) {
    return confirmaciones(con).actualizar(record);
  }
  bool BorrarPartidaConfirmacion(FDAPI::Conexion& con, std::int32_t lngID) {
    return confirmaciones(con).borrar(lngID);
  }
  bool ActualizacionFormatoConfirmacion(FDAPI::Conexion& con, const cConfirmacion& record,
                                        bool& blnSalto) {
    return confirmaciones(con).formato(record, blnSalto);
  }
  /// Fills the item that has this key.
  bool ActualizarColeccionConfirmacion(FDAPI::Conexion& con, std::int32_t lngID,
                                       ColeccionConfirmacion& colPartidas, std::int32_t lngLibro) {
    return completarItem(confirmaciones(con), lngLibro, lngID, colPartidas,
                         &cConfirmacion::IDConfirmacion);
  }
  bool AnularDesanularPartidaConfirmacion(FDAPI::Conexion& con, std::int32_t lngID) {
    return confirmaciones(con).anular(lngID);
  }

  // Death

  bool GrabarBasedatosColeccionDefuncion(FDAPI::Conexion& con, std::int32_t lngLibro,
                                         ColeccionDefuncion& result) {
    return defunciones(con).cargar(lngLibro, result);
  }
  bool GrabarColeccionBaseDatosDefuncion(FDAPI::Conexion& con, ColeccionDefuncion& colPartidas,
                                         bool& blnSalto) {
    return defunciones(con).grabar(colPartidas, blnSalto);
  }
  bool AltaPartidaDefuncion(FDAPI::Conexion& con, cDefuncion& record) {
    return defunciones(con).alta(record);
  }
  bool ActualizarPartidaDefuncion(FDAPI::Conexion& con, const cDefuncion& record) {
    return defunciones(con).actualizar(record);
  }
  bool BorrarPartidaDefuncion(FDAPI::Conexion& con, std::int32_t lngID) {
    return defunciones(con).borrar(lngID);
  }
  bool ActualizacionFormatoDefuncion(FDAPI::Conexion& con, const cDefuncion& record,
                                     bool& blnSalto) {
    return defunciones(con).formato(record, blnSalto);
  }
  /// Fills the item that has this key.
  bool ActualizarColeccionDefuncion(FDAPI::Conexion& con, std::int32_t lngID,
                                    ColeccionDefuncion& colPartidas, std::int32_t lngLibro) {
    return completarItem(defunciones(con), lngLibro, lngID, colPartidas, &cDefuncion::IDDifunto);
  }
  bool AnularDesanularPartidaDefuncion(FDAPI::Conexion& con, std::int32_t lngID) {
    return defunciones(con).anular(lngID);
  }

  // Marriage

  bool GrabarBasedatosColeccionMatrimonio(FDAPI::Conexion& con, std::int32_t lngLibro,
                                          ColeccionMatrimonio& result) {
    return matrimonios(con).cargar(lngLibro, result);
  }
  bool GrabarColeccionBaseDatosMatrimonio(FDAPI::Conexion& con, ColeccionMatrimonio& colPartidas,
                                          bool& blnSalto) {
    return matrimonios(con).grabar(colPartidas, blnSalto);
  }
  bool AltaPartidaMatrimonio(FDAPI::Conexion& con, cMatrimonio& record) {
    return matrimonios(con).alta(record);
  }
  bool ActualizarPartidaMatrimonio(FDAPI::Conexion& con, const cMatrimonio& record) {
    return matrimonios(con).actualizar(record);
  }
  bool BorrarPartidaMatrimonio(FDAPI::Conexion& con, std::int32_t lngID) {
    return matrimonios(con).borrar(lngID);
  }
  bool ActualizacionFormatoMatrimonio(FDAPI::Conexion& con, const cMatrimonio& record,
                                      bool& blnSalto) {
    return matrimonios(con).formato(record, blnSalto);
  }
  /// Fills the item that has this key.
  bool ActualizarColeccionMatrimonio(FDAPI::Conexion& con, std::int32_t lngID,
                                     ColeccionMatrimonio& colPartidas, std::int32_t lngLibro) {
    return completarItem(matrimonios(con), lngLibro, lngID, colPartidas,
                         &cMatrimonio::IDMatrimonio);
  }
  bool AnularDesanularPartidaMatrimonio(FDAPI::Conexion& con, std::int32_t lngID) {
    return matrimonios(con).anular(lngID);
  }

 private:
  Almacen<cBautismo> bautismos(FDAPI::Conexion& con) { return {contexto_, con, ALMACEN_BAUTISMO}; }
  Almacen<cConfirmacion> confirmaciones(FDAPI::Conexion& con) {
    return {contexto_, con, ALMACEN_CONFIRMACION};
  }
  Almacen<cDefuncion> defunciones(FDAPI::Conexion& con) {
    return {contexto_, con, ALMACEN_DEFUNCION};
  }
  Almacen<cMatrimonio> matrimonios(FDAPI::Conexion& con) {
    return {contexto_, con, ALMACEN_MATRIMONIO};
  }
  template <class Registro>
  static bool completarItem(Almacen<Registro> almacen, std::int32_t lngLibro, std::int32_t lngID,
                            std::vector<Registro>& coleccion, std::int32_t Registro::*clave) {
    const auto item = std::ranges::find(coleccion, lngID, clave);
    return item != coleccion.end() && almacen.completar(lngLibro, lngID, *item);
  }

  Contexto& contexto_;
};

}  // namespace fidaleon
