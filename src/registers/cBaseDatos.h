#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"
#include "registers/baptism/cBautismo.h"

namespace fidaleon {

/// Carries records to and from the tables of the registers. Each operation reports its own errors
/// to the user and tells by its answer whether it ran through. The caller holds the locks: new keys
/// are read back as the highest ones, which is safe with a single writer only.
class cBaseDatos {
 public:
  explicit cBaseDatos(Contexto& contexto) : contexto_(contexto) {}

  // Baptism

  /// The entries of a book in the order of their positions, each with its first columns only.
  bool GrabarBasedatosColeccion(FDAPI::Conexion& conBaseDatos, std::int32_t lngLibro,
                                ColeccionBautismo& result);
  /// Does to the tables what each item says, each in one transaction. An item that went through is
  /// marked as done, so that a second call after a failure stores nothing twice. `blnSalto`: an old
  /// book's next free position is not the one after its last.
  bool GrabarColeccionBasesDatos(FDAPI::Conexion& conBaseDatos, ColeccionBautismo& colPartidas,
                                 bool& blnSalto);
  /// Deletes the items that reached the tables without their child and were not stored since.
  bool RetirarAMedias(FDAPI::Conexion& conBaseDatos, ColeccionBautismo& colPartidas);
  /// Inserts father, mother, marriage, entry and child; the record takes the new keys. A record
  /// that has its key already, since a former try got as far as that, gets its rows updated and its
  /// child inserted: tried again, nothing is stored twice.
  bool AltaPartidaBautismo(FDAPI::Conexion& conBaseDatos, cBautismo& record);
  /// Writes entry and child, and of the shared rows those whose flag is set.
  bool ActualizarPartidaBautismo(FDAPI::Conexion& conBaseDatos, const cBautismo& record);
  /// Deletes the entry and its child, and those parent rows that no other entry uses.
  bool BorrarPartidaBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);
  /// Sets the counters of the entry's old book anew.
  bool ActualizacionFormatoBautismo(FDAPI::Conexion& conBaseDatos, const cBautismo& record,
                                    bool& blnSalto);
  /// Fills the item at `pos` (from 0) with all columns of entry `lngID`; false when it is gone.
  bool ActualizarColeccion(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                           ColeccionBautismo& colPartidas, std::size_t pos);
  bool AnularDesanularPar(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);

 private:
  bool guardar(FDAPI::Conexion& conBaseDatos, cBautismo& partida, bool& blnSalto);
  void insertarPartida(FDAPI::Conexion& conBaseDatos, cBautismo& record);
  void insertarPadres(FDAPI::Conexion& conBaseDatos, cBautismo& record);

  Contexto& contexto_;
  // Keys of the parent rows of the entry being stored; 0 until they are known.
  std::int32_t lngIDPadres_ = 0;
  std::int32_t lngIDMadres_ = 0;
  std::int32_t lngIDMatrimonio_ = 0;
};

}  // namespace fidaleon
