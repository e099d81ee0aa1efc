#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/contract/Contexto.h"
#include "core/lists/PoblacionesOfrecidas.h"
#include "core/lists/Vocabulario.h"
#include "forms/Contents.h"

namespace fidaleon {

/// A table whose texts are worth offering.
struct Fuente {
  struct Columna {
    const char* nombre;
    Voz voz;
  };
  const char* tabla;
  const char* clave;  // a number that later rows have higher, with an index
  std::vector<Columna> columnas;
};

/// What a desk remembers of what has been written, for as long as the parish stays open: read from
/// the tables a little at a time, the newest rows first, and taken up from what is stored here.
class Memoria {
 public:
  Memoria();
  /// The one of the desk.
  static Memoria& de(const Contexto& contexto);

  /// Rows that have come since are read first.
  void hayNuevas();
  /// The same, and towns are read anew.
  void ponerAlDia();
  /// Reads on for about so long; false when all has been read. Throws store::Error.
  bool leer(FDAPI::Conexion& conexion, std::chrono::milliseconds plazo);
  bool completa() const { return completa_; }

  Vocabulario vocabulario;
  PoblacionesOfrecidas lugares;
  /// The fields of the entry stored last, by the name of its dialog.
  std::map<std::string, std::vector<forms::Field>> anteriores;

 private:
  struct Lectura {
    const Fuente* fuente;
    std::int64_t desde = INT64_MAX;  // rows below are still to be read
    std::int64_t hasta = INT64_MIN;  // the highest that has been
    bool hayNuevas = false;
    bool agotada = false;
  };
  /// A few rows; false when there were none.
  bool leerTramo(FDAPI::Conexion& conexion, Lectura& lectura);

  std::vector<Lectura> lecturas_;
  bool completa_ = false;
};

}  // namespace fidaleon
