#include "parish/server/ServerLook.h"

#include "store/Open.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerAccess.h"
#include "store/schema/Installer.h"

namespace fidaleon::app {
namespace {

bool yes(store::Link& link, const std::string& condition) {
  return link.ask("SELECT " + condition).text(0, 0) == "t";
}

void requireWriting(store::Link& link, const store::ServerAddress& address) {
  if (yes(link, "pg_is_in_recovery() OR current_setting('transaction_read_only') = 'on'"))
    throw store::Error(store::ErrorKind::ReadOnly,
                       "El servidor de " + address.shown() +
                           " solo deja leer: será una réplica. Escriba el nombre del principal.");
}

/// The first institution's, as the window's title has it.
std::string nameIn(store::PostgresEngine& engine) {
  const store::Spelling& spell = engine.spelling();
  const store::Answer first =
      engine.link().ask("SELECT " + spell.name("Nombre") + " FROM " + spell.name("Institucion") +
                        " ORDER BY " + spell.name("IDInstitucion") + " LIMIT 1");
  return first.rows() == 0 ? "" : std::string(first.text(0, 0));
}

void lookInside(store::PostgresEngine& engine, ServerLook& look) {
  const store::Schema& schema = store::parishSchema();
  store::Installer installer(engine, schema);
  const bool half = installer.isUnfinished();
  look.content = half ? ServerLook::Content::HalfMoved : ServerLook::Content::Parish;
  if (half) return;
  if (installer.version() < schema.version()) look.version = ServerLook::Version::Older;
  look.name = nameIn(engine);
  look.mayWrite =
      yes(engine.link(), "has_table_privilege(" +
                             store::Link::text(engine.spelling().name("Bautismo")) + ", 'INSERT')");
}

}  // namespace

bool ServerLook::canBeJoined() const {
  return content == Content::Parish && mayWrite && (version == Version::Same || owns);
}

ServerLook lookAt(const store::ServerAddress& address, const std::string& password) {
  store::PostgresEngine engine(address, password.empty() ? store::passwordFor(address) : password);
  requireWriting(engine.link(), address);
  ServerLook look;
  const bool hasSchema = yes(engine.link(), "to_regnamespace('fidaleon') IS NOT NULL");
  look.owns =
      yes(engine.link(), hasSchema ? "has_schema_privilege('fidaleon', 'CREATE')"
                                   : "has_database_privilege(current_database(), 'CREATE')");
  if (hasSchema && yes(engine.link(), "to_regclass('fidaleon.\"Esquema\"') IS NOT NULL"))
    lookInside(engine, look);
  return look;
}

std::string spoken(const ServerLook& look, const store::ServerAddress& address) {
  using Content = ServerLook::Content;
  const std::string user = "«" + address.user + "»";
  if (look.content == Content::HalfMoved)
    return "En la base de datos " + address.shown() +
           " hay un traslado a medias. Acábelo en el equipo en el que se empezó.";
  if (look.content == Content::Nothing)
    return "En la base de datos " + address.shown() + " no hay ninguna parroquia" +
           (look.owns ? ": puede crearse en ella."
                      : ", y " + user + " no puede crearla. Tiene que hacerlo su dueño.");
  const std::string there =
      "En la base de datos " + address.shown() + " está la parroquia «" + look.name + "»";
  if (!look.mayWrite)
    return there + ", pero " + user +
           " solo puede leer. Pida a quien lleva el servidor un usuario que pueda anotar.";
  if (look.version == ServerLook::Version::Same)
    return there + ", y " + user + " puede trabajar en ella.";
  return there + ", de una versión anterior del programa. " +
         (look.owns ? "Al conectar se pondrá al día."
                    : "Antes tiene que abrirla una vez el dueño de la base de datos.");
}

}  // namespace fidaleon::app
