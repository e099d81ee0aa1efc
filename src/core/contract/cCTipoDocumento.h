#pragma once

#include <cstdint>

namespace fidaleon {

/// Document types as they are stored; 17 and 18 were never given out.
enum class cCTipoDocumento : std::uint8_t {
  LibroBautismo = 1,
  CertificadoLiteralPartidaMatrimonio = 2,
  CertificadoPartidaMatrimonio = 3,
  ExhortoAmonestaciones = 4,
  NotificacionMatrimonio = 5,
  VolanteMatrimonio = 6,
  PartidaMatrimonio = 7,
  ComunicacionMatrimonio = 8,
  ExpedienteMatrimonioOtras = 9,
  ExpedienteMatrimonioMadrid = 10,
  ResumenMatrimonio = 11,
  ResumenMatrimonio2 = 12,
  DuplicadasMatrimonio = 13,
  LibroMatrimonio = 14,
  IndiceLibroMatrimonio = 15,
  ExpedienteMatrimonioMadrid2015 = 16,
  EstadoExpedienteMatrimonio = 19,
  AtestadoMatrimonioFueraDiocesis = 20,
};

}  // namespace fidaleon
