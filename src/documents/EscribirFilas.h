#pragma once

#include <cstdint>
#include <string>

#include "documents/DocumentRow.h"
#include "store/Connection.h"

namespace fidaleon::documents {

/// `check`, followed by a key, answers something other than 0.
inline bool hayPartidas(store::Connection& conFidaleon, const char* check, std::int32_t lngID) {
  const store::Recordset rs = conFidaleon.Execute(check + std::to_string(lngID));
  return !rs.EOF_() && rs.Fields(0).Value().integer() != 0;
}

/// One row for each record of `entries`, which `rows` reads; `written` is told the running count
/// behind each.
template <class Written>
void escribirFilas(RowStatements& rows, store::Recordset& entries, store::Connection& conInformes,
                   Written&& written) {
  for (std::int32_t fila = 1; !entries.EOF_(); entries.MoveNext(), ++fila) {
    conInformes.Execute(rows.current());
    written(fila);
  }
}

}  // namespace fidaleon::documents
