#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"
#include "store/Transaction.h"

namespace fidaleon {

/// The removal of a record with all that hangs on it, with the progress display open for as long as
/// it takes. Either all its statements are done or none: an error, or a user who stops it, takes
/// back what was removed so far. Call terminar() behind the last step.
class Eliminacion {
 public:
  Eliminacion(Contexto& contexto, FDAPI::Conexion& conexion, const std::string& mensaje,
              std::int64_t pasos);
  ~Eliminacion();
  Eliminacion(const Eliminacion&) = delete;
  Eliminacion& operator=(const Eliminacion&) = delete;

  /// Runs a statement and moves the display by one. May throw forms::Cancelled.
  void paso(const std::string& sentencia);
  /// Moves the display past a step that there is nothing to do for.
  void pasoSinTrabajo();
  void terminar();

 private:
  FDAPI::Conexion& conexion_;
  forms::Hourglass reloj_;
  std::unique_ptr<FDAPI::cFidaleon> fidaleon_;
  store::Transaction transaccion_;
  std::int64_t hechos_ = 0;
};

/// "ADVERTENCIA" and what would be lost; true for Yes. `articulo` is "un" or "una", `nombre`
/// "Empadronado" and its like, `cual` what tells this one from others.
bool preguntarEliminacion(Contexto& contexto, const std::string& articulo,
                          const std::string& nombre, const std::string& cual);

/// Name, surnames and NIF; empty when the person has gone.
std::string nombrePersona(FDAPI::Conexion& conexion, std::int32_t id);
/// Of an activity or office, by its table; empty when it has gone.
std::string nombreDe(FDAPI::Conexion& conexion, const char* tabla, std::int32_t id);

}  // namespace fidaleon
