#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "registers/common/FormaPartida.h"

namespace fidaleon {

/// An entry or a request that has lost one of its rows, and with it its place in all lists.
struct PartidaIncompleta {
  const FormaPartida* clase = nullptr;
  std::int32_t id = 0;
  std::int32_t codLibro = 0;  // 0: a request
  std::string libro;          // its name
  std::string folio;
  std::string numero;
  std::string fecha;  // as it is stored; empty when its row is lost
  std::vector<const FilaDePartida*> faltan;
  std::string queda;  // whom the rows name that are there
};

// All throw store::Error.

/// Of all registers.
std::int64_t cuentaPartidasIncompletas(FDAPI::Conexion& conexion);
std::vector<PartidaIncompleta> partidasIncompletas(FDAPI::Conexion& conexion);
/// The same entry as it is now; without a class when it has gone or lacks nothing any more.
PartidaIncompleta releida(FDAPI::Conexion& conexion, const PartidaIncompleta& partida);
/// Gives the entry the rows that it lacks, blank. The caller holds its table: new keys are read
/// back as the highest ones.
void completarPartida(FDAPI::Conexion& conexion, const PartidaIncompleta& partida);

}  // namespace fidaleon
