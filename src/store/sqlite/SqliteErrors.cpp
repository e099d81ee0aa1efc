#include "store/sqlite/SqliteErrors.h"

#include <cerrno>

namespace fidaleon::store {

namespace {

struct Meaning {
  ErrorKind kind;
  const char* message;
};

Meaning meaningOf(int code, int systemError) {
  switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
      return {ErrorKind::Constraint, "La base de datos no admite ese valor."};
    case SQLITE_TOOBIG:
      return {ErrorKind::TooLong, "El texto es demasiado largo."};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return {ErrorKind::Busy,
              "Otro programa u otro puesto está usando la base de datos. Espere un momento y "
              "vuelva a intentarlo."};
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return {ErrorKind::ReadOnly, "La base de datos está protegida contra escritura."};
    case SQLITE_FULL:
      return {ErrorKind::DiskFull, "No queda espacio en el disco. No se han guardado los cambios."};
    case SQLITE_NOTADB:
      return {ErrorKind::NotADatabase, "El archivo no es una base de datos de este programa."};
    case SQLITE_CORRUPT:
      return {ErrorKind::NotADatabase,
              "El archivo de la base de datos está dañado. No siga anotando: vuelva a una copia de "
              "seguridad (Archivo, Volver a una copia)."};
    case SQLITE_CANTOPEN:
      return {ErrorKind::Connection, "No se puede abrir el archivo de la base de datos."};
    case SQLITE_IOERR:
      if (systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG) {
        return {ErrorKind::DiskFull,
                "No queda espacio en el disco. No se han guardado los cambios."};
      }
      return {ErrorKind::Connection,
              "No se puede leer o escribir el archivo de la base de datos. Compruebe el disco o la "
              "red."};
    case SQLITE_INTERRUPT:
      return {ErrorKind::Cancelled, "Se ha cancelado."};
    case SQLITE_ERROR:
      return {ErrorKind::Syntax, "La base de datos no entiende la instrucción."};
    default:
      return {ErrorKind::Other, "Error de la base de datos."};
  }
}

}  // namespace

Error sqliteError(int code, sqlite3* db) {
  const Meaning meaning = meaningOf(code, db != nullptr ? sqlite3_system_errno(db) : 0);
  // The engine's own words are English: its number, and where in the statement, say as much to
  // those who mend it.
  std::string message = std::string(meaning.message) + " (SQLite " + std::to_string(code);
  const int place = db != nullptr ? sqlite3_error_offset(db) : -1;
  if (place >= 0) message += ", posición " + std::to_string(place);
  return Error(meaning.kind, message + ")", code);
}

void check(int code, sqlite3* db) {
  if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) throw sqliteError(code, db);
}

}  // namespace fidaleon::store
