#pragma once
// The statements that read a baptism for its documents: one joined row with every detail of the
// entry. A missing dependent row hides the entry.

#include <cstdint>
#include <string>

namespace fidaleon::documents {

/// The extract and the literal certificate.
std::string certificateStatement(std::int32_t idBautismo);
std::string literalCertificateMenorcaStatement(std::int32_t idBautismo);
std::string entryStatement(std::int32_t idBautismo);
std::string volanteStatement(std::int32_t idBautismo);
/// A request has no book: the institution is the one that asked for the entry.
std::string requestStatement(std::int32_t idBautismo);
std::string requestSantiagoStatement(std::int32_t idBautismo);

/// All entries of a book, annulled ones too, in the order of the pages, and of the names.
std::string bookStatement(std::int32_t idLibro);
std::string indexStatement(std::int32_t idLibro);
/// All entries of a calendar year in the books of an institution, without an order.
std::string duplicateStatement(std::int32_t ano, std::int32_t idInstitucion);

}  // namespace fidaleon::documents
