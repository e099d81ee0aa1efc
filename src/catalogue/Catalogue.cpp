#include "catalogue/Catalogue.h"

#include "support/Mantenimiento.h"

namespace fidaleon::app {
namespace {

support::Catalogo catalogueOf(NodeKind kind) {
  switch (kind) {
    case NodeKind::Institutions:
      return support::Catalogo::Institucion;
    case NodeKind::Provinces:
      return support::Catalogo::Provincia;
    case NodeKind::Towns:
      return support::Catalogo::Municipio;
    default:
      return support::Catalogo::Tarea;
  }
}

template <class Work>
void maintain(Workplace& w, Work&& work) {
  Contexto context(w.entorno());
  context.gobjConfig = &w.config();
  support::Mantenimiento maintenance(context, w.parish());
  work(maintenance);
}

}  // namespace

void openCatalogueRow(Workplace& w, NodeKind kind, std::int32_t id) {
  maintain(w, [&](support::Mantenimiento& m) {
    if (id == 0)
      m.agregar(catalogueOf(kind));
    else
      m.propiedades(catalogueOf(kind), id);
  });
}

void deleteCatalogueRow(Workplace& w, NodeKind kind, std::int32_t id) {
  maintain(w, [&](support::Mantenimiento& m) { m.eliminar(catalogueOf(kind), id); });
}

}  // namespace fidaleon::app
