#pragma once
// The rows of Documentos_Bautismo.

#include "documents/Columns.h"

namespace fidaleon::documents {

/// The entry, 49 columns.
const Columns& bautismoEntry();
/// Provinces of the grandparents.
const Columns& bautismoGrandparentProvinces();

Columns bautismoEntryWithNotes(Source notes);
Columns bautismoCertificate();
Columns bautismoCertificateMenorca();
Columns bautismoLiteralCertificate();
Columns bautismoLiteralCertificateMenorca();
Columns bautismoRequest();
Columns bautismoRequestSantiago();
Columns bautismoVolante();
Columns bautismoBook();
Columns bautismoIndex();
Columns bautismoDuplicate();

}  // namespace fidaleon::documents
