#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/contract/Sacramento.h"
#include "core/statements/Sentencia.h"
#include "registers/allocation/FoliosOcupados.h"
#include "store/Connection.h"

namespace fidaleon {

/// FolioSiguiente and NumeroSiguiente of an old book, worked out from its entries after each one
/// stored. The book is read once; of the entries stored since it is told. Throws store::Error; the
/// counters then are as last written.
class ActualizacionFormato {
 public:
  /// The connection is not owned.
  ActualizacionFormato(store::Connection& conexion, const Sacramento& sacramento,
                       std::int32_t libro)
      : conexion_(conexion), sacramento_(sacramento), libro_(libro) {}

  std::int32_t libro() const { return libro_; }
  /// One more entry of the book stands in the table.
  void sumar(const Posicion& posicion);
  /// Writes the counters. Sets `blnSalto` when the next position is not where they led; otherwise
  /// leaves it.
  void actualizar(bool& blnSalto);

 private:
  FoliosOcupados leer(int porFolio);
  bool salta(const Posicion& siguiente, int porFolio);
  bool hay(std::int64_t numero, std::int64_t folio);
  void guardar(const Posicion& siguiente);
  store::Recordset ejecutar(const PlantillaSql& antes, const std::string& despues = {});

  store::Connection& conexion_;
  const Sacramento& sacramento_;
  std::int32_t libro_;
  std::optional<FoliosOcupados> folios_;
};

/// The same after one entry.
void actualizacionFormato(store::Connection& conexion, const Sacramento& sacramento,
                          std::int32_t libro, bool& blnSalto);

}  // namespace fidaleon
