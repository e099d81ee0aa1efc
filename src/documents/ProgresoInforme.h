#pragma once

#include <cstdint>

#include "core/contract/FDAPI.h"
#include "documents/ProgresoImpresion.h"

namespace fidaleon::documents {

/// Leads the progress object of a report from row to row. A report without rows leaves it alone.
class ProgresoInforme {
 public:
  ProgresoInforme(FDAPI::cProgreso& progreso, std::int64_t cuenta)
      : progreso_(progreso), cuenta_(cuenta) {
    if (cuenta_ == 0) return;
    progreso_.Cargar(cuenta_, PROCESANDO, 1, 0);
    progreso_.setValue(0);
  }

  /// Behind each row. Throws forms::Cancelled.
  void avanzar() { progreso_.setValue(++filas_); }
  void terminar() {
    if (cuenta_ != 0) progreso_.setValue(cuenta_);
  }

 private:
  FDAPI::cProgreso& progreso_;
  std::int64_t cuenta_;
  std::int64_t filas_ = 0;
};

}  // namespace fidaleon::documents
