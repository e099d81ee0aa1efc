#pragma once

#include <cstdint>
#include <exception>

#include "core/contract/FDAPI.h"

namespace fidaleon::documents {

inline constexpr const char* PROCESANDO = "Procesando vista preliminar ...";

/// The host's progress display, open for the length of a block: only while rows are being written,
/// and closed also when one of them fails.
class ProgresoImpresion {
 public:
  ProgresoImpresion(FDAPI::cFidaleon& fidaleon, std::int64_t cuenta) : fidaleon_(fidaleon) {
    fidaleon_.ProgresoLoad(cuenta, PROCESANDO, 1);
  }
  ~ProgresoImpresion() {
    try {
      fidaleon_.ProgresoUnload();
    } catch (const std::exception&) {
      // The rows are what counts.
    }
  }
  ProgresoImpresion(const ProgresoImpresion&) = delete;
  ProgresoImpresion& operator=(const ProgresoImpresion&) = delete;

  /// The row number `fila`, from 1, is written. Throws forms::Cancelled.
  void avanzar(std::int32_t fila) { fidaleon_.ProgresoRefresh(fila); }

 private:
  FDAPI::cFidaleon& fidaleon_;
};

}  // namespace fidaleon::documents
