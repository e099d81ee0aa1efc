#pragma once

#include <cstdint>

#include "documents/DocumentRow.h"
#include "store/Connection.h"

namespace fidaleon::documents {

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
