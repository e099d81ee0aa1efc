#include "documents/Miembros.h"

#include <algorithm>
#include <stdexcept>

#include "documents/BautismoColumns.h"
#include "documents/BautismoStatements.h"
#include "documents/ConfirmacionDocumentos.h"
#include "documents/DefuncionDocumentos.h"

namespace fidaleon::documents {

namespace {

constexpr const char* BAPTISM = "Documentos_Bautismo";
constexpr const char* CONFIRMATION = "Documentos_Confirmacion";
constexpr const char* DEATH = "Documentos_Defuncion";

constexpr const char* BAPTISMS = "SELECT CodLibro FROM bautismo WHERE CodLibro=";
constexpr const char* CONFIRMATIONS = "SELECT codlibro FROM confirmacion WHERE codlibro=";
constexpr const char* COUNT_OF_DEATHS =
    "SELECT COUNT(IDDifunto) AS Total FROM Defuncion WHERE CodLibro=";
constexpr const char* DEATHS = "SELECT CodLibro FROM Defuncion WHERE CodLibro=";

}  // namespace

const std::vector<Miembro>& miembros() {
  static const std::vector<Miembro> todos{
      // Both Menorca certificates of baptism keep the Spanish long dates and write the Catalan ones
      // beside them.
      {{"ImprimirCertificadoPartidaBautismo", BAPTISM, Wording::Castellano, nullptr,
        bautismoCertificate()},
       certificateStatement},
      {{"ImprimirCertificadoPartidaBautismoMenorca", BAPTISM, Wording::Castellano, nullptr,
        bautismoCertificateMenorca()},
       certificateStatement},
      {{"ImprimirCertificadoLiteralPartidaBautismo", BAPTISM, Wording::Castellano, &WORDS_ENTRY,
        bautismoLiteralCertificate()},
       certificateStatement},
      {{"ImprimirCertificadoLiteralPartidaBautismoMenorca", BAPTISM, Wording::Castellano,
        &WORDS_ENTRY, bautismoLiteralCertificateMenorca()},
       literalCertificateMenorcaStatement},
      {{"ImprimirPartidaBautismo", BAPTISM, Wording::Castellano, &WORDS_ENTRY,
        bautismoEntryWithNotes(Source::PaddedNotes)},
       entryStatement},
      {{"ImprimirPartidaBautismoMenorca", BAPTISM, Wording::Menorca, &WORDS_ENTRY_MENORCA,
        bautismoEntryWithNotes(Source::Stored)},
       entryStatement},
      {{"ImprimirVolanteBautismo", BAPTISM, Wording::Castellano, &WORDS_VOLANTE, bautismoVolante()},
       volanteStatement,
       "SELECT MAX(Folio) AS ID FROM Documentos_Bautismo"},
      {{"ImprimirSolicitudPartidaBautismoDatos", BAPTISM, Wording::Castellano, &WORDS_REQUEST,
        bautismoRequest()},
       requestStatement},
      {{"ImprimirSolicitudPartidaBautismoDatosMenorca", BAPTISM, Wording::Menorca,
        &WORDS_REQUEST_MENORCA, bautismoRequest()},
       requestStatement},
      {{"ImprimirSolicitudPartidaBautismoDatosSantiago", BAPTISM, Wording::Castellano,
        &WORDS_REQUEST, bautismoRequestSantiago()},
       requestSantiagoStatement},
      {{"ImprimirLibroBautismo", BAPTISM, Wording::Castellano, &WORDS_BOOK, bautismoBook()},
       bookStatement,
       nullptr,
       BAPTISMS},
      {{"ImprimirLibroBautismoMenorca", BAPTISM, Wording::Menorca, &WORDS_BOOK_MENORCA,
        bautismoBook()},
       bookStatement,
       nullptr,
       BAPTISMS},
      {{"ImprimirIndiceLibroBautismo", BAPTISM, Wording::Castellano, nullptr, bautismoIndex()},
       indexStatement,
       nullptr,
       BAPTISMS},
      {{"ImprimirCertificadoPartidaConfirmacion", CONFIRMATION, Wording::Castellano, nullptr,
        confirmacionCertificate(Source::LongDateSpanish)},
       confirmacionStatement},
      {{"ImprimirCertificadoPartidaConfirmacionMenorca", CONFIRMATION, Wording::Menorca, nullptr,
        confirmacionCertificate(Source::LongDate)},
       confirmacionStatement},
      {{"ImprimirCertificadoLiteralPartidaConfirmacion", CONFIRMATION, Wording::Castellano, nullptr,
        confirmacionLiteralCertificate()},
       confirmacionStatement},
      {{"ImprimirCertificadoLiteralPartidaConfirmacionMenorca", CONFIRMATION, Wording::Menorca,
        nullptr, confirmacionLiteralCertificate()},
       confirmacionStatement},
      {{"ImprimirPartidaConfirmacion", CONFIRMATION, Wording::Castellano, nullptr,
        confirmacionEntry(Source::PaddedNotes)},
       confirmacionStatement},
      {{"ImprimirPartidaConfirmacionMenorca", CONFIRMATION, Wording::Menorca, nullptr,
        confirmacionEntry()},
       confirmacionStatement},
      {{"ImprimirNotificacionConfirmacion", CONFIRMATION, Wording::Castellano, nullptr,
        confirmacionNotice()},
       confirmacionStatement,
       "SELECT MAX(Nombre) AS Ultimo FROM Documentos_Confirmacion"},
      {{"ImprimirNotificacionConfirmacionMenorca", CONFIRMATION, Wording::Menorca, nullptr,
        confirmacionNotice()},
       confirmacionStatement,
       "SELECT MAX(Nombre) AS Ultimo FROM Documentos_Confirmacion"},
      {{"ImprimirSolicitudConfirmacion", CONFIRMATION, Wording::Castellano, nullptr,
        confirmacionRequest()},
       confirmacionRequestStatement},
      {{"ImprimirLibroConfirmacion", CONFIRMATION, Wording::Castellano, nullptr,
        confirmacionBook()},
       confirmacionBookStatement,
       nullptr,
       CONFIRMATIONS},
      {{"ImprimirLibroConfirmacionMenorca", CONFIRMATION, Wording::Menorca, nullptr,
        confirmacionBook()},
       confirmacionBookStatement,
       nullptr,
       CONFIRMATIONS},
      {{"ImprimirIndiceLibroConfirmacion", CONFIRMATION, Wording::Castellano, nullptr,
        confirmacionIndex()},
       confirmacionIndexStatement,
       nullptr,
       CONFIRMATIONS},
      {{"ImprimirCertificadoPartidaDefuncion", DEATH, Wording::Castellano, nullptr,
        defuncionCertificate(Source::PaddedNotes)},
       defuncionStatement},
      {{"ImprimirCertificadoPartidaDefuncionMenorca", DEATH, Wording::Menorca, nullptr,
        defuncionCertificate(Source::Stored)},
       defuncionStatement},
      {{"ImprimirCertificadoLiteralPartidaDefuncion", DEATH, Wording::Castellano, nullptr,
        defuncionLiteralCertificate()},
       defuncionStatement},
      {{"ImprimirCertificadoLiteralPartidaDefuncionMenorca", DEATH, Wording::Menorca, nullptr,
        defuncionLiteralCertificate()},
       defuncionStatement},
      {{"ImprimirPartidaDefuncion", DEATH, Wording::Castellano, nullptr, defuncionEntry()},
       defuncionStatement},
      {{"ImprimirPartidaDefuncionMenorca", DEATH, Wording::Menorca, nullptr,
        defuncionEntryMenorca()},
       defuncionStatement},
      {{"ImprimirLibroDefuncion", DEATH, Wording::Castellano, nullptr,
        defuncionBook(Source::Stored)},
       defuncionBookStatement,
       nullptr,
       COUNT_OF_DEATHS},
      {{"ImprimirLibroDefuncionMenorca", DEATH, Wording::MenorcaStored, nullptr,
        defuncionBook(Source::Stored)},
       defuncionBookStatement,
       nullptr,
       COUNT_OF_DEATHS},
      {{"ImprimirIndiceLibroDefuncion", DEATH, Wording::Castellano, nullptr, defuncionIndex()},
       defuncionIndexStatement,
       nullptr,
       DEATHS},
  };
  return todos;
}

const Miembro& miembro(std::string_view nombre) {
  const auto hallado = std::find_if(miembros().begin(), miembros().end(),
                                    [&](const Miembro& m) { return nombre == m.kind.member; });
  if (hallado == miembros().end()) throw std::logic_error("no such member: " + std::string(nombre));
  return *hallado;
}

}  // namespace fidaleon::documents
