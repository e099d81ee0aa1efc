#include "documents/BautismoColumns.h"
#include "documents/BautismoStatements.h"
#include "documents/cInformes.h"

namespace fidaleon {

using documents::DocumentKind;
using documents::Wording;

namespace {

constexpr const char* TABLE = "Documentos_Bautismo";

}  // namespace

void cInformes::ImprimirLibroBautismo(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                      std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirLibroBautismo", TABLE, Wording::Castellano,
                                 &documents::WORDS_BOOK, documents::bautismoBook()};
  const documents::BookStatements book = documents::bookStatements(lngID);
  escribirLibro(kind, conFidaleon, conInformes, book.check, book.rows);
}

void cInformes::ImprimirLibroBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                             FDAPI::Conexion& conInformes, std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirLibroBautismoMenorca", TABLE, Wording::Menorca,
                                 &documents::WORDS_BOOK_MENORCA, documents::bautismoBook()};
  const documents::BookStatements book = documents::bookStatements(lngID);
  escribirLibro(kind, conFidaleon, conInformes, book.check, book.rows);
}

void cInformes::ImprimirIndiceLibroBautismo(FDAPI::Conexion& conFidaleon,
                                            FDAPI::Conexion& conInformes, std::int32_t lngID) {
  static const DocumentKind kind{"ImprimirIndiceLibroBautismo", TABLE, Wording::Castellano, nullptr,
                                 documents::bautismoIndex()};
  const documents::BookStatements index = documents::indexStatements(lngID);
  escribirLibro(kind, conFidaleon, conInformes, index.check, index.rows);
}

}  // namespace fidaleon
