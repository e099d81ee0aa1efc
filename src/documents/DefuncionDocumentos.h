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
/// Little of the entry. Its priest is the entry's; the institution is the one whose duplicate it
/// is.
Columns defuncionDuplicate();
Columns defuncionIndex();

/// With book and institution.
std::string defuncionStatement(std::int32_t idDifunto);

/// All entries of a book, annulled ones too, in the order of the pages, and of the names.
std::string defuncionBookStatement(std::int32_t idLibro);
std::string defuncionIndexStatement(std::int32_t idLibro);
/// All entries of a calendar year in the books of an institution, without an order.
std::string defuncionDuplicateStatement(std::int32_t ano, std::int32_t idInstitucion);

}  // namespace fidaleon::documents
