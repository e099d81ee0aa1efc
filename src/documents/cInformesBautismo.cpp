#include "documents/BautismoColumns.h"
#include "documents/BautismoStatements.h"
#include "documents/cInformes.h"

namespace fidaleon {

using documents::DocumentKind;
using documents::Source;
using documents::Wording;

namespace {

constexpr const char* TABLE = "Documentos_Bautismo";

}  // namespace

void cInformes::ImprimirCertificadoPartidaBautismo(FDAPI::Conexion& conFidaleon,
                                                   FDAPI::Conexion& conInformes, std::int32_t lngID,
                                                   const std::string& strEncargado,
                                                   const std::string& strFecha) {
  static const DocumentKind kind{"ImprimirCertificadoPartidaBautismo", TABLE, Wording::Castellano,
                                 nullptr, documents::bautismoCertificate()};
  escribirDocumento(kind, conFidaleon, conInformes, documents::certificateStatement(lngID),
                    {strEncargado, strFecha});
}

// Both Menorca certificates keep the Spanish long dates and write the Catalan ones beside them.

void cInformes::ImprimirCertificadoPartidaBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                                          FDAPI::Conexion& conInformes,
                                                          std::int32_t lngID,
                                                          const std::string& strEncargado,
                                                          const std::string& strFecha) {
  static const DocumentKind kind{"ImprimirCertificadoPartidaBautismoMenorca", TABLE,
                                 Wording::Castellano, nullptr,
                                 documents::bautismoCertificateMenorca()};
  escribirDocumento(kind, conFidaleon, conInformes, documents::certificateStatement(lngID),
                    {strEncargado, strFecha});
}

void cInformes::ImprimirCertificadoLiteralPartidaBautismo(FDAPI::Conexion& conFidaleon,
                                                          FDAPI::Conexion& conInformes,
                                                          std::int32_t lngID,
                                                          const std::string& strEncargado,
                                                          const std::string& strFecha) {
  static const DocumentKind kind{"ImprimirCertificadoLiteralPartidaBautismo", TABLE,
                                 Wording::Castellano, &documents::WORDS_ENTRY,
                                 documents::bautismoLiteralCertificate()};
  escribirDocumento(kind, conFidaleon, conInformes, documents::certificateStatement(lngID),
                    {strEncargado, strFecha});
}

void cInformes::ImprimirCertificadoLiteralPartidaBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                                                 FDAPI::Conexion& conInformes,
                                                                 std::int32_t lngID,
                                                                 const std::string& strEncargado,
                                                                 const std::string& strFecha) {
  static const DocumentKind kind{"ImprimirCertificadoLiteralPartidaBautismoMenorca", TABLE,
                                 Wording::Castellano, &documents::WORDS_ENTRY,
                                 documents::bautismoLiteralCertificateMenorca()};
  escribirDocumento(kind, conFidaleon, conInformes,
                    documents::literalCertificateMenorcaStatement(lngID), {strEncargado, strFecha});
}

void cInformes::ImprimirPartidaBautismo(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                        std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirPartidaBautismo", TABLE, Wording::Castellano,
                                 &documents::WORDS_ENTRY,
                                 documents::bautismoEntryWithNotes(Source::PaddedNotes)};
  escribirDocumento(kind, conFidaleon, conInformes, documents::entryStatement(lngID), {});
}

void cInformes::ImprimirPartidaBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                               FDAPI::Conexion& conInformes, std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirPartidaBautismoMenorca", TABLE, Wording::Menorca,
                                 &documents::WORDS_ENTRY_MENORCA,
                                 documents::bautismoEntryWithNotes(Source::Stored)};
  escribirDocumento(kind, conFidaleon, conInformes, documents::entryStatement(lngID), {});
}

void cInformes::ImprimirVolanteBautismo(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                        std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirVolanteBautismo", TABLE, Wording::Castellano,
                                 &documents::WORDS_VOLANTE, documents::bautismoVolante()};
  escribirDocumento(kind, conFidaleon, conInformes, documents::volanteStatement(lngID),
                    {"", contexto_.hoy()}, "SELECT MAX(Folio) AS ID FROM Documentos_Bautismo");
}

void cInformes::ImprimirSolicitudPartidaBautismoDatos(FDAPI::Conexion& conFidaleon,
                                                      FDAPI::Conexion& conInformes,
                                                      std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirSolicitudPartidaBautismoDatos", TABLE,
                                 Wording::Castellano, &documents::WORDS_REQUEST,
                                 documents::bautismoRequest()};
  escribirDocumento(kind, conFidaleon, conInformes, documents::requestStatement(lngID),
                    {"", contexto_.hoy()});
}

void cInformes::ImprimirSolicitudPartidaBautismoDatosMenorca(FDAPI::Conexion& conFidaleon,
                                                             FDAPI::Conexion& conInformes,
                                                             std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirSolicitudPartidaBautismoDatosMenorca", TABLE,
                                 Wording::Menorca, &documents::WORDS_REQUEST_MENORCA,
                                 documents::bautismoRequest()};
  escribirDocumento(kind, conFidaleon, conInformes, documents::requestStatement(lngID),
                    {"", contexto_.hoy()});
}

void cInformes::ImprimirSolicitudPartidaBautismoDatosSantiago(FDAPI::Conexion& conFidaleon,
                                                              FDAPI::Conexion& conInformes,
                                                              std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirSolicitudPartidaBautismoDatosSantiago", TABLE,
                                 Wording::Castellano, &documents::WORDS_REQUEST,
                                 documents::bautismoRequestSantiago()};
  escribirDocumento(kind, conFidaleon, conInformes, documents::requestSantiagoStatement(lngID),
                    {"", contexto_.hoy()});
}

}  // namespace fidaleon
