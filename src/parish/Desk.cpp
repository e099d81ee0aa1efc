#include "parish/Desk.h"

#include "store/Engine.h"

namespace fidaleon::app {
namespace {

FDAPI::cConfig configFor(const std::string& user) {
  FDAPI::cConfig config;
  config.Usuario = user;
  return config;
}

/// Nobody where there is no parish.
std::unique_ptr<Presence> come(const ParishFiles& files, const std::string& user,
                               const Clock& clock) {
  if (!files.exists()) return nullptr;
  return std::make_unique<Presence>(files.directory, user,
                                    text::toShort(clock.today()) + " a las " + clock.now());
}

}  // namespace

Desk::Desk(const ParishFiles& files, const std::string& user, forms::UserInterface& ui,
           Settings& settings, Clock& clock)
    : files_(files.resolved()),
      presence_(come(files_, user, clock)),
      open_(openParish(files_)),
      config_(configFor(user)),
      front_(ui),
      support_(front_, settings, clock, config_, {},
               [this](const auto& directory) {
                 return presence_ ? presence_->session() : locks::meetingAt(directory);
               }),
      entorno_{front_, support_, settings, clock, {open_.edition, editionName(open_.edition)}},
      nucleo_(entorno_) {
  if (presence_) parish().engine().fenceWith(presence_->fence());
}

std::string Desk::parishName() {
  const auto rows = parish().Execute("SELECT Nombre FROM Institucion ORDER BY IDInstitucion");
  return rows.EOF_() ? std::string() : rows.text("Nombre");
}

void Desk::setEdition(const std::string& code) {
  keepEdition(parish(), code);
  writeEdition(files_, code);
  entorno_.installation.Aplicacion = code;
  entorno_.installation.INF_TipoAplicacion = editionName(code);
}

std::string Desk::parishTitle() {
  return parishName() + (keptAsSample(parish()) ? " (MUESTRA)" : "");
}

bool Desk::setUp() {
  bool complete = false;
  nucleo_.DatosSetup(parish(), complete);
  return complete;
}

}  // namespace fidaleon::app
