#pragma once
// Which rows each member of cInformes writes of a marriage: the loader of its edition, run once
// for each type of document.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "documents/CargadorMatrimonio.h"

namespace fidaleon::documents {

/// As Santiago, this edition sends its notices of marriage to a court.
inline constexpr const char* EDICION_CON_JUZGADO = "0008";

struct MiembroMatrimonio {
  const char* nombre;
  const CargadorMatrimonio& cargador;
  std::vector<cCTipoDocumento> tipos;
  std::string (*rows)(std::int32_t key);  // one record for each marriage
  /// Of a book: as in Miembro.
  const char* check = nullptr;
};

const std::vector<MiembroMatrimonio>& miembrosMatrimonio();
/// By its name. Throws std::logic_error for any other.
const MiembroMatrimonio& miembroMatrimonio(std::string_view nombre);

}  // namespace fidaleon::documents
