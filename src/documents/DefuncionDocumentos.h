#pragma once
// The rows of Documentos_Defuncion, and the statement that reads a death for them.

#include <cstdint>
#include <string>

#include "documents/Columns.h"

namespace fidaleon::documents {

Columns defuncionLiteralCertificate();
/// Without the residence; `notes` says how the marginal notes come.
Columns defuncionCertificate(Source notes);
/// Without the place of death; `hour` is how the time of death comes where there is none.
Columns defuncionBook(Source hour);
/// As the book with the date of issue; in the base edition the notes too.
Columns defuncionEntryMenorca();
Columns defuncionEntry();

/// With book and institution.
std::string defuncionStatement(std::int32_t idDifunto);

}  // namespace fidaleon::documents
