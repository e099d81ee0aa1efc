#include <stdexcept>

#include "parish/server/ServerParish.h"
#include "store/postgres/Link.h"
#include "text/Utf8.h"

namespace fidaleon::app {

namespace {

constexpr std::size_t LONGEST = 55;  // with the ends of its roles, as long as names may be

constexpr const char* SCRIPT =
    R"sql(-- Fidaleon: papeles y base de datos «{base}» en un servidor PostgreSQL (14 o posterior).
-- Lo ejecuta una sola vez quien administra el servidor:
--   sudo -u postgres psql -v ON_ERROR_STOP=1 -f este-archivo.sql
-- Puede repetirse: lo que ya está se queda como está.

\set ON_ERROR_STOP on

-- Tres papeles. El dueño crea las tablas y las pone al día con cada versión del programa; entra con
-- contraseña. Los que usan la parroquia la leen y escriben; los que leen, solo la leen.
SELECT 'CREATE ROLE {dueno} LOGIN NOSUPERUSER NOCREATEDB NOCREATEROLE'
  WHERE NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = {dueno_texto}) \gexec
SELECT 'CREATE ROLE {usuario} NOLOGIN NOSUPERUSER NOCREATEDB NOCREATEROLE'
  WHERE NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = {usuario_texto}) \gexec
SELECT 'CREATE ROLE {lector} NOLOGIN NOSUPERUSER NOCREATEDB NOCREATEROLE'
  WHERE NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = {lector_texto}) \gexec

SELECT 'CREATE DATABASE {base} OWNER {dueno} TEMPLATE template0 ENCODING ''UTF8'''
  WHERE NOT EXISTS (SELECT 1 FROM pg_database WHERE datname = {base_texto}) \gexec
REVOKE ALL ON DATABASE {base} FROM PUBLIC;
GRANT CONNECT ON DATABASE {base} TO {usuario}, {lector};

\connect {base}
CREATE SCHEMA IF NOT EXISTS fidaleon AUTHORIZATION {dueno};
GRANT USAGE ON SCHEMA fidaleon TO {usuario}, {lector};
-- Vale para lo que el dueño cree desde ahora, también al poner al día la parroquia.
ALTER DEFAULT PRIVILEGES FOR ROLE {dueno} IN SCHEMA fidaleon
  GRANT SELECT, INSERT, UPDATE, DELETE ON TABLES TO {usuario};
ALTER DEFAULT PRIVILEGES FOR ROLE {dueno} IN SCHEMA fidaleon
  GRANT USAGE, SELECT, UPDATE ON SEQUENCES TO {usuario};
ALTER DEFAULT PRIVILEGES FOR ROLE {dueno} IN SCHEMA fidaleon GRANT SELECT ON TABLES TO {lector};
ALTER DEFAULT PRIVILEGES FOR ROLE {dueno} IN SCHEMA fidaleon GRANT SELECT ON SEQUENCES TO {lector};
-- Y para lo que ya hubiera.
GRANT SELECT, INSERT, UPDATE, DELETE ON ALL TABLES IN SCHEMA fidaleon TO {usuario};
GRANT USAGE, SELECT, UPDATE ON ALL SEQUENCES IN SCHEMA fidaleon TO {usuario};
GRANT SELECT ON ALL TABLES IN SCHEMA fidaleon TO {lector};
GRANT SELECT ON ALL SEQUENCES IN SCHEMA fidaleon TO {lector};

-- Después, a mano, con contraseñas que no queden escritas en ningún archivo:
--   \password {dueno}
--   CREATE ROLE ana LOGIN IN ROLE {usuario};
--   \password ana
)sql";

}  // namespace

std::string rolesScript(const std::string& database) {
  if (database.size() > LONGEST || database.find_first_of("'\"=\\/") != std::string::npos)
    throw std::invalid_argument("La base de datos no puede llamarse «" + database +
                                "»: sin comillas ni los signos = \\ /, y con " +
                                std::to_string(LONGEST) + " letras como mucho.");
  std::string script = SCRIPT;
  for (const char* role : {"dueno", "usuario", "lector"}) {
    const std::string name = database + "_" + role;
    script = text::replaceAll(script, "{" + std::string(role) + "}", store::Link::name(name));
    script = text::replaceAll(script, "{" + std::string(role) + "_texto}", store::Link::text(name));
  }
  script = text::replaceAll(script, "«{base}»", "«" + database + "»");
  script = text::replaceAll(script, "{base}", store::Link::name(database));
  return text::replaceAll(script, "{base_texto}", store::Link::text(database));
}

}  // namespace fidaleon::app
