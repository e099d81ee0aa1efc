#include "core/statements/TransaccionSinVuelta.h"

namespace fidaleon {

TransaccionSinVuelta::TransaccionSinVuelta(const Contexto& contexto, FDAPI::Conexion& conexion,
                                           store::Removes quita)
    : contexto_(contexto), conexion_(conexion) {
  if (quita == store::Removes::Yes) conexion_.aheadOfRemoval();
  conexion_.BeginTrans();
  contexto_.transacciones.push_back(this);
}

TransaccionSinVuelta::~TransaccionSinVuelta() {
  try {
    terminar();
  } catch (const std::exception&) {  // whoever is unwinding has the error that counts
  }
}

void TransaccionSinVuelta::terminar() {
  if (!abierta_) return;
  abierta_ = false;
  std::erase(contexto_.transacciones, this);
  try {
    conexion_.CommitTrans();
  } catch (const std::exception&) {
    deshecha_ = true;
    try {
      conexion_.RollbackTrans();
    } catch (const std::exception&) {  // the connection itself is lost
    }
    throw;
  }
}

void TransaccionSinVuelta::terminarTodas(const Contexto& contexto) noexcept {
  const std::vector<TransaccionSinVuelta*> todas = contexto.transacciones;
  for (auto t = todas.rbegin(); t != todas.rend(); ++t) {
    try {
      (*t)->terminar();
    } catch (const std::exception&) {  // with it goes what was nested in it
      for (auto dentro = todas.rbegin(); dentro != t; ++dentro) (*dentro)->deshecha_ = true;
    }
  }
}

}  // namespace fidaleon
