#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "registers/common/FormaPartida.h"

namespace fidaleon {

/// An entry or a request that has lost one of its rows, or a request or a book that has lost its
/// institution: with it went its place in all lists, and with a book's that of all its entries.
struct PartidaIncompleta {
  const FormaPartida* clase = nullptr;
  std::int32_t id = 0;        // 0: the book itself
  std::int32_t codLibro = 0;  // 0: a request
  std::string libro;          // its name
  std::string folio;
  std::string numero;
  std::string fecha;  // as it is stored; empty when its row is lost
  std::vector<const FilaDePartida*> faltan;
  bool sinLibro = false;  // the entries are there, and the book is not
  bool sinInstitucion = false;
  std::string queda;  // whom the rows name that are there; of a book, how many entries

  bool esLibro() const { return id == 0; }
};

// All throw store::Error.

/// Of all registers.
std::int64_t cuentaPartidasIncompletas(FDAPI::Conexion& conexion);
std::vector<PartidaIncompleta> partidasIncompletas(FDAPI::Conexion& conexion);
/// The same entry as it is now; without a class when it has gone or lacks nothing any more.
PartidaIncompleta releida(FDAPI::Conexion& conexion, const PartidaIncompleta& partida);
/// Gives the entry the rows that it lacks, blank, and what has lost its institution that one. The
/// caller holds its table: new keys are read back as the highest ones.
void completarPartida(FDAPI::Conexion& conexion, const PartidaIncompleta& partida,
                      std::int64_t institucion = 0);
/// Whether that institution has another book with the name of this one.
bool hayOtroLibro(FDAPI::Conexion& conexion, const PartidaIncompleta& libro,
                  std::int64_t institucion);

}  // namespace fidaleon
