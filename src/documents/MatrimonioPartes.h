#pragma once
// A marriage as its documents read it: the statement that finds it, and the parts it is made of.

#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"
#include "documents/FilaCompuesta.h"

namespace fidaleon::documents {

/// With its book and the institution of that.
std::string matrimonioStatement(std::int32_t idMatrimonio);
/// With the institution that the dossier was opened in, whether or not it stands in a book.
std::string expedienteStatement(std::int32_t idMatrimonio);

/// All entries of a book, annulled ones too, in the order of the pages, and of the names.
std::string matrimonioBookStatement(std::int32_t idLibro);
std::string matrimonioIndexStatement(std::int32_t idLibro);
/// All entries of a calendar year in the books of an institution, without an order.
std::string matrimonioDuplicateStatement(std::int32_t ano, std::int32_t idInstitucion);

/// Reads the tables of the marriage on which `matrimonios` stands, each by its key, as parts of
/// the names of the tables. The institution is that of the book, or of the dossier where there is
/// no book.
void CargarMatrimonioCompleto(FDAPI::Conexion& conFidaleon, const store::Recordset& matrimonios,
                              FilaCompuesta& fila);

}  // namespace fidaleon::documents
