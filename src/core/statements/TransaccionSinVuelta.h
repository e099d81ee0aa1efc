#pragma once

#include "core/contract/Contexto.h"
#include "store/Transaction.h"

namespace fidaleon {

/// One transaction around the steps of something that is stored as a whole. The steps have no way
/// back: where one fails, what the others did stays and is committed with them. What undoes all is
/// the end of the process, or a store that cannot commit. They nest.
///
/// None stands open while a user reads a message, since all other workstations would wait for that:
/// the guard of the procedures ends them before it tells of an error.
class TransaccionSinVuelta {
 public:
  TransaccionSinVuelta(const Contexto& contexto, FDAPI::Conexion& conexion,
                       store::Removes quita = store::Removes::No);
  /// Ends it as terminar() does, without a word.
  ~TransaccionSinVuelta();
  TransaccionSinVuelta(const TransaccionSinVuelta&) = delete;
  TransaccionSinVuelta& operator=(const TransaccionSinVuelta&) = delete;

  /// Commits; does nothing when it has ended already. Throws when the store cannot, and then
  /// nothing of it is there.
  void terminar();
  /// Nothing of what was done in it is there.
  bool deshecha() const { return deshecha_; }

  /// Ends all that stand open. Never throws: see deshecha().
  static void terminarTodas(const Contexto& contexto) noexcept;

 private:
  const Contexto& contexto_;
  FDAPI::Conexion& conexion_;
  bool abierta_ = true;
  bool deshecha_ = false;
};

}  // namespace fidaleon
