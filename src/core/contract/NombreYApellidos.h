#pragma once

#include <string>

#include "core/contract/FDAPI.h"
#include "text/Utf8.h"

namespace fidaleon {

/// Of a row with these columns, with a blank between them; what is not known is left out.
inline std::string nombreYApellidos(const store::Recordset& fila) {
  std::string todo;
  for (const char* columna : {"Nombre", "PrimerApellido", "SegundoApellido"}) {
    const std::string parte = text::trim(fila.text(columna));
    if (!parte.empty() && parte != "---") todo += (todo.empty() ? "" : " ") + parte;
  }
  return todo;
}

}  // namespace fidaleon
