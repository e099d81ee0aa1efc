#pragma once
// The loader of all documents of a marriage, of the entry or of the dossier under way. Its three
// editions are one procedure over three descriptions.

#include <array>
#include <string>
#include <vector>

#include "core/contract/cCTipoDocumento.h"
#include "documents/FilaCompuesta.h"

namespace fidaleon::documents {

/// What one edition of the loader writes and asks.
struct CargadorMatrimonio {
  DocumentKind matrimonio;  // its counter is the key of the rows beside it
  std::array<DocumentKind, 3> companeras;
  bool preguntaJuzgado;  // a notice is addressed to a court
  bool preguntaIncoado;  // one edition of the dossier says when it was opened
  bool conCursos;        // and one has the examinations
};

/// Each names its members as errors do.
const CargadorMatrimonio& Cargar_Documentos_Matrimonio();
const CargadorMatrimonio& Cargar_Documentos_MatrimonioMenorca();
const CargadorMatrimonio& Cargar_Documentos_MatrimonioSantiago();
/// The examinations: one row for each person who was heard.
const DocumentKind& cursosMatrimonio();

/// Asks what the type of document needs to be asked, in this order: keeper and date, the data of
/// the exhorto, the date, the court. Then writes the rows of each of `matrimonios`, from the first
/// on, in one transaction; a dialog that was cancelled leaves none and is no error. `progreso`
/// follows duplicates; a book and an index move the host's display, which the caller has opened.
/// False when an error, which has been told, has taken all rows back. Throws forms::Cancelled.
bool cargarDocumentos(Contexto& contexto, const CargadorMatrimonio& cargador,
                      store::Recordset& matrimonios, cCTipoDocumento tipo,
                      FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                      FDAPI::cProgreso* progreso = nullptr);

}  // namespace fidaleon::documents
