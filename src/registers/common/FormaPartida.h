#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "core/contract/FDAPI.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// A table in which an entry has a row.
struct FilaDePartida {
  const char* nombre;  // as people call it; null for the entry's own
  const char* tabla;
  const char* clave;  // by which the row is found
  const char*
      enlace;       // the entry's column that holds that key: its own key when the row is its own
  bool compartida;  // other entries may point at it
};

/// The rows of which an entry is made, in the order in which they are deleted. Whoever lists, reads
/// or prints entries joins all of them: one that lacks a row shows nowhere.
struct FormaPartida {
  const Sacramento& sacramento;
  const char* registro;  // as people call it
  const char* fecha;     // column of the day
  std::span<const FilaDePartida> filas;
  std::span<const char* const> personas;  // tables that bear the name of whose entry it is
};

std::span<const FormaPartida> formasPartida();
/// Null for a sacrament without entries of its own.
const FormaPartida* formaPartida(const Sacramento& sacramento);

/// "SELECT * FROM Bautismo WHERE IDBautismo=" and the key.
std::string sqlPartida(const Sacramento& sacramento, std::int32_t id);

/// What becomes of a shared row that another entry uses as well.
enum class Compartidas { Respetar, Borrar };
/// Deletes the rows of an entry or a request. `partida` stands on its own one.
void borrarFilas(FDAPI::Conexion& conexion, const FormaPartida& forma,
                 const store::Recordset& partida, Compartidas compartidas);
/// The same, after setting back the counters of its book, which are worked out anew with the next
/// entry. Nothing when the entry has gone.
void borrarPartida(FDAPI::Conexion& conexion, const FormaPartida& forma, std::int32_t id,
                   Compartidas compartidas);

/// Whose entry it is and, in a second line, where it stands: for questions about it. A request has
/// the first alone; one that has gone has nothing.
std::string nombrePartida(FDAPI::Conexion& conexion, const Sacramento& sacramento, std::int32_t id,
                          const char* entrePersonas = " y ");

}  // namespace fidaleon
