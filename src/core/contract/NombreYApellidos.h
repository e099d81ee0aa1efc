#pragma once

#include <initializer_list>
#include <string>

#include "core/contract/FDAPI.h"
#include "text/Utf8.h"

namespace fidaleon {

/// With a blank between them; what is not known is left out.
inline std::string nombreYApellidos(std::initializer_list<std::string> partes) {
  std::string todo;
  for (const std::string& escrita : partes) {
    const std::string parte = text::trim(escrita);
    if (!parte.empty() && parte != "---") todo += (todo.empty() ? "" : " ") + parte;
  }
  return todo;
}

/// Of a row with these columns.
inline std::string nombreYApellidos(const store::Recordset& fila) {
  return nombreYApellidos(
      {fila.text("Nombre"), fila.text("PrimerApellido"), fila.text("SegundoApellido")});
}

}  // namespace fidaleon
