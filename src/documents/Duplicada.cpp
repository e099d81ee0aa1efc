#include "documents/Duplicada.h"

#include "core/contract/CcNodos.h"
#include "documents/BautismoColumns.h"
#include "documents/BautismoStatements.h"

namespace fidaleon::documents {

namespace {

// Every template of a duplicate defines the formula fields that its orders name.

const Duplicada& bautismo() {
  static const Duplicada duplicada{
      BAUTISMO,
      CcNodos::INFDUPLICADASBAUTISMO,
      {{{"Fecha de Bautismo",
         " ORDER BY Bautismo.FechaBautismo, Bautismo.Folio, VAL(Bautismo.Numero)",
         "+{@FechaBautismo},+{@Folio},+{@Numero}"},
        {"Fecha de Creación del Libro",
         " ORDER BY Libro_Bautismo.FechaCreacion, Bautismo.Folio, VAL(Bautismo.Numero)",
         "+{@FechaCreacion},+{@Folio},+{@Numero}"},
        {"Apellidos del bautizado",
         " ORDER BY Bautismo_Hijo.PrimerApellido,Bautismo_Hijo.SegundoApellido, "
         "Bautismo_Hijo.Nombre",
         "+{@Nombre}"}}},
      {"DuplicadasBautismo", "Documentos_Bautismo", Wording::Castellano, nullptr,
       bautismoDuplicate()},
      duplicateStatement};
  return duplicada;
}

}  // namespace

const Duplicada* duplicadaDeNodo(std::string_view nodo) {
  for (const Duplicada* duplicada : {&bautismo()})
    if (nodo == duplicada->nodo || sacramentoDeNodo(nodo, "Partidas") == &duplicada->sacramento)
      return duplicada;
  return nullptr;
}

}  // namespace fidaleon::documents
