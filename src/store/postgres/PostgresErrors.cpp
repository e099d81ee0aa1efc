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
    {"0A", ErrorKind::Other,
     "A ese servidor PostgreSQL le falta algo que hace falta: las reglas de orden de ICU."},
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

Error postgresError(const PGresult* answer) {
  const char* state = PQresultErrorField(answer, PG_DIAG_SQLSTATE);
  return state != nullptr ? told(state) : Error(ErrorKind::Connection, kGone);
}

namespace {

/// Words of the server and of the library that have no number, in the languages of their messages.
struct Refusal {
  const char* words;
  const char* spanish;
  ErrorKind kind;
  const char* meaning;
};

constexpr const char* kNoRoom =
    "el servidor no admite más puestos a la vez. Espere a que alguno cierre el programa, y avise a "
    "quien lleva el servidor.";

/// The first that fits counts: the name of a file that is missing is one of the certificate's.
constexpr Refusal kRefusals[] = {
    {"pg_hba.conf", "pg_hba.conf", ErrorKind::Connection,
     "el servidor no deja entrar a ese usuario en esa base desde este equipo."},
    {"does not support SSL", "no soporta SSL", ErrorKind::Connection,
     "el servidor no habla cifrado (TLS), y sin eso no se entra en el de otro equipo."},
    {"does not match host name", "no coincide con el nombre de servidor", ErrorKind::Connection,
     "el certificado del servidor es de otro nombre. Escriba el nombre que lleva el certificado."},
    {"root certificate", "certificado ra", ErrorKind::Connection,
     "no puede leerse el archivo del certificado con el que se comprueba el servidor."},
    {"certificate", "certificado", ErrorKind::Connection,
     "no puede comprobarse que sea el servidor que dice ser (su certificado)."},
    {"SSL", "SSL", ErrorKind::Connection,
     "no se ha podido entrar cifrado (TLS): puede que no sea un servidor PostgreSQL."},
    {"translate host name", "traducir el nombre", ErrorKind::Connection,
     "no se encuentra ningún equipo con ese nombre. Compruebe cómo está escrito, y la red."},
    {"does not exist", "no existe", ErrorKind::Missing,
     "el servidor no tiene esa base o ese usuario."},
    {"not permitted to log in", "no se le permite conectarse", ErrorKind::Connection,
     "ese usuario no puede entrar en el servidor. Pídalo a quien lo lleva."},
    {"permission denied for database", "permiso denegado a la base", ErrorKind::Connection,
     "ese usuario no tiene permiso para entrar en esa base. Pídalo a quien lleva el servidor."},
    {"too many c", "demasiad", ErrorKind::Busy, kNoRoom},
    {"remaining connection slots", "conexiones restantes", ErrorKind::Busy, kNoRoom},
    {"", "", ErrorKind::Connection,
     "el servidor no responde. Compruebe que está encendido y la red."},
};

}  // namespace

Error connectionError(PGconn* link, const std::string& shown) {
  if (PQconnectionNeedsPassword(link) != 0 || says(link, "password authentication") ||
      says(link, "autentificación password"))
    return Error(ErrorKind::Connection, kRefused, kWrongPassword);
  for (const char* words : {"starting up", "iniciándose", "shutting down", "apagándose",
                            "recovery mode", "modo de recuperación"})
    if (says(link, words)) return Error(ErrorKind::Connection, kStopping);
  const Refusal* refusal = kRefusals;
  while (!says(link, refusal->words) && !says(link, refusal->spanish)) ++refusal;
  return Error(refusal->kind, "No se puede entrar en " + shown + ": " + refusal->meaning);
}

Error stillAway(const Error& error) {
  return Error(
      error.kind(),
      std::string(error.what()) +
          "\n\nLo que no estaba guardado no se ha guardado: no cierre lo que tiene escrito "
          "y vuelva a aceptar cuando el servidor responda.",
      error.number());
}

}  // namespace fidaleon::store
