#pragma once
// The yearly duplicates of the registers as data: what tells one sacrament's from another's.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/contract/Sacramento.h"
#include "documents/CargadorMatrimonio.h"
#include "documents/DocumentRow.h"
#include "documents/ProgresoImpresion.h"

namespace fidaleon::documents {

/// One order in which a duplicate can come.
struct OrdenDuplicada {
  const char* texto;     // as the user chooses it
  const char* sql;       // behind the statement, with its leading blank
  const char* strOrden;  // for the report engine: direction and formula field of the template
};

struct Duplicada {
  const Sacramento& sacramento;
  const char* nodo;
  std::array<OrdenDuplicada, 3> ordenes;
  DocumentKind documento;
  /// Reads all entries of a year in the books of an institution, without an order.
  std::string (*sentencia)(std::int32_t ano, std::int32_t idInstitucion);
  const char* progreso = PROCESANDO;  // beside the bar
  /// Writes the rows, and has its own transaction; null where `documento` is all there is.
  const CargadorMatrimonio& (*cargador)() = nullptr;
};

const std::vector<Duplicada>& duplicadas();
/// By the node of the report ("Duplicadas de bautismo") or of the entries ("PartidasBautismo").
/// Null for any other name, and for a sacrament without a duplicate.
const Duplicada* duplicadaDeNodo(std::string_view nodo);

}  // namespace fidaleon::documents
