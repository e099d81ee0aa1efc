#pragma once
// The rows of Documentos_Confirmacion, and the statements that read a confirmation for them.

#include <cstdint>
#include <string>

#include "documents/Columns.h"

namespace fidaleon::documents {

/// The entry with its institution, 46 columns. `notes` says how the marginal notes come.
Columns confirmacionEntry(Source notes = Source::Stored);
Columns confirmacionLiteralCertificate();
/// `confirmed` is how the date of the sacrament comes in words.
Columns confirmacionCertificate(Source confirmed);
Columns confirmacionNotice();
Columns confirmacionRequest();

/// With book and institution. Columns that two tables have are asked for by their qualified names.
std::string confirmacionStatement(std::int32_t idConfirmacion);
/// A request stands in no book: it comes with the first book and institution of the store.
std::string confirmacionRequestStatement(std::int32_t idConfirmacion);

}  // namespace fidaleon::documents
