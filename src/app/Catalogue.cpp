#include "app/Catalogue.h"

#include "support/Catalogos.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"

namespace fidaleon::app {
namespace {

template <class Dialog>
void open(Workplace& w, std::int32_t id) {
  Entorno& e = w.entorno();
  Dialog dialog(e.ui, e.settings, e.clock, w.parish(), w.config(), id);
  dialog.Show();
}

}  // namespace

void openCatalogueRow(Workplace& w, NodeKind kind, std::int32_t id) {
  switch (kind) {
    case NodeKind::Institutions:
      return open<support::frmInstitucion>(w, id);
    case NodeKind::Provinces:
      return open<support::frmProvincia>(w, id);
    case NodeKind::Towns:
      return open<support::frmMunicipio>(w, id);
    default:
      return;
  }
}

void deleteCatalogueRow(Workplace& w, NodeKind kind, std::int32_t id) {
  Entorno& e = w.entorno();
  const auto services = e.support.create_cFidaleon();
  switch (kind) {
    case NodeKind::Institutions:
      support::eliminarInstitucion(*services, e.ui, w.parish(), id);
      return;
    case NodeKind::Provinces:
      support::eliminarProvincia(*services, e.ui, w.parish(), id);
      return;
    case NodeKind::Towns:
      support::eliminarMunicipio(*services, e.ui, w.parish(), id);
      return;
    default:
      return;
  }
}

}  // namespace fidaleon::app
