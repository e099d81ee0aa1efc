#include "store/postgres/PostgresErrors.h"

namespace fidaleon::store {

namespace {

struct Meaning {
  std::string_view beginning;  // of the five signs
  ErrorKind kind;
  const char* message;
};

constexpr const char* kGone =
    "Se ha perdido la conexión con el servidor de la parroquia. Lo que no estaba guardado no se ha "
    "guardado: no cierre lo que tiene escrito y vuelva a aceptar cuando el servidor responda.";
constexpr const char* kBusy =
    "Otro puesto está guardando en el servidor. Espere un momento y vuelva a intentarlo.";
constexpr const char* kRefused =
    "El servidor no admite ese usuario con esa contraseña. Compruébelos con quien lleva el "
    "servidor.";
constexpr const char* kDamaged =
    "La base de datos del servidor está dañada. No siga anotando y avise a quien lleva el "
    "servidor.";
constexpr const char* kStopping =
    "El servidor de la parroquia se está parando o arrancando. Espere un momento y vuelva a "
    "aceptar.";

/// The first that fits counts.
constexpr Meaning kMeanings[] = {
    {"22001", ErrorKind::TooLong, "El texto es demasiado largo."},
    {"22", ErrorKind::Constraint, "La base de datos no admite ese valor."},
    {"23", ErrorKind::Constraint, "La base de datos no admite ese valor."},
    {"25006", ErrorKind::ReadOnly, "El servidor solo deja leer."},
    {"28", ErrorKind::Connection, kRefused},
    {"3D", ErrorKind::Missing, "El servidor no tiene esa base de datos."},
    {"40", ErrorKind::Busy, kBusy},
    {"55P03", ErrorKind::Busy, kBusy},
    {"55006", ErrorKind::Busy, "Alguien tiene abierta la base de datos del servidor."},
    {"42501", ErrorKind::ReadOnly, "El usuario del servidor no tiene permiso para hacer eso."},
    {"42P04", ErrorKind::Constraint, "El servidor ya tiene una base de datos con ese nombre."},
    {"42", ErrorKind::Syntax, "La base de datos no entiende la instrucción."},
    {"53100", ErrorKind::DiskFull,
     "No queda espacio en el disco del servidor. No se han guardado los cambios."},
    {"53300", ErrorKind::Busy, "El servidor no admite más puestos a la vez."},
    {"57014", ErrorKind::Cancelled, "Se ha cancelado."},
    {"57P", ErrorKind::Connection, kStopping},
    {"58", ErrorKind::Connection, "El servidor no puede leer o escribir en su disco."},
    {"08", ErrorKind::Connection, kGone},
    {"XX001", ErrorKind::NotADatabase, kDamaged},
    {"XX002", ErrorKind::NotADatabase, kDamaged},
    {"", ErrorKind::Other, "Error de la base de datos del servidor."},
};

const Meaning& meaningOf(std::string_view state) {
  for (const Meaning& meaning : kMeanings)
    if (state.starts_with(meaning.beginning)) return meaning;
  return kMeanings[std::size(kMeanings) - 1];
}

/// The server's own words may be in any language: the signs say as much to those who mend it.
Error told(std::string_view state) {
  const Meaning& meaning = meaningOf(state);
  return Error(meaning.kind,
               std::string(meaning.message) + " (PostgreSQL " + std::string(state) + ")",
               sqlState(state));
}

bool says(PGconn* link, const char* words) {
  return std::string_view(PQerrorMessage(link)).find(words) != std::string_view::npos;
}

}  // namespace

Error postgresError(const PGresult* answer, PGconn* link) {
  const char* state = PQresultErrorField(answer, PG_DIAG_SQLSTATE);
  if (state != nullptr) return told(state);
  if (PQstatus(link) == CONNECTION_BAD) return Error(ErrorKind::Connection, kGone);
  return Error(ErrorKind::Other, "No se entiende lo que responde el servidor.");
}

Error connectionError(PGconn* link, const std::string& shown) {
  const std::string where = "No se puede entrar en " + shown + ": ";
  // Words of the server that the library does not number, in the languages of its messages.
  if (PQconnectionNeedsPassword(link) != 0 || says(link, "password authentication") ||
      says(link, "autentificación password"))
    return Error(ErrorKind::Connection, kRefused, kWrongPassword);
  if (says(link, "does not exist") || says(link, "no existe"))
    return Error(ErrorKind::Missing, where + "el servidor no tiene esa base o ese usuario.");
  if (says(link, "too many c") || says(link, "demasiadas conexiones"))
    return Error(ErrorKind::Busy, where + "el servidor no admite más puestos a la vez.");
  if (says(link, "certificate") || says(link, "SSL"))
    return Error(ErrorKind::Connection,
                 where + "no puede comprobarse que sea el servidor que dice ser (su certificado).");
  if (says(link, "starting up") || says(link, "shutting down"))
    return Error(ErrorKind::Connection, kStopping);
  return Error(ErrorKind::Connection,
               where + "el servidor no responde. Compruebe que está encendido y la red.");
}

}  // namespace fidaleon::store
