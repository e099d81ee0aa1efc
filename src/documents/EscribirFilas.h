#pragma once

#include <cstdint>

#include "documents/DocumentRow.h"
#include "store/Connection.h"

namespace fidaleon::documents {

/// One row for each record of `entries`; `written` is told the running count behind each.
template <class Written>
void escribirFilas(RowStatements& rows, store::Recordset& entries, store::Connection& conInformes,
                   Written&& written) {
  for (std::int32_t fila = 1; !entries.EOF_(); entries.MoveNext(), ++fila) {
    conInformes.Execute(rows.of(entries));
    written(fila);
  }
}

}  // namespace fidaleon::documents
