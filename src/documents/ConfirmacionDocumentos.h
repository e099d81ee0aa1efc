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
/// The entry with both dates in Catalan beside those in the wording of the edition.
Columns confirmacionBook();
/// The institution is the one whose duplicate it is.
Columns confirmacionDuplicate();
Columns confirmacionIndex();

/// With book and institution. Columns that two tables have are asked for by their qualified names.
std::string confirmacionStatement(std::int32_t idConfirmacion);
/// A request stands in no book: it comes with the first book and institution of the store.
std::string confirmacionRequestStatement(std::int32_t idConfirmacion);

/// All entries of a book, annulled ones too, in the order of the pages, and of the names.
std::string confirmacionBookStatement(std::int32_t idLibro);
std::string confirmacionIndexStatement(std::int32_t idLibro);
/// All entries of a calendar year in the books of an institution, without an order.
std::string confirmacionDuplicateStatement(std::int32_t ano, std::int32_t idInstitucion);

}  // namespace fidaleon::documents
