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

}  // namespace fidaleon::documents
