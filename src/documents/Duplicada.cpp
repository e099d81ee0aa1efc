#include "documents/Duplicada.h"

#include "core/contract/CcNodos.h"
#include "documents/BautismoColumns.h"
#include "documents/BautismoStatements.h"
#include "documents/ConfirmacionDocumentos.h"
#include "documents/DefuncionDocumentos.h"
#include "documents/MatrimonioPartes.h"

namespace fidaleon::documents {

// Every template of a duplicate defines the formula fields that its orders name.

const std::vector<Duplicada>& duplicadas() {
  static const std::vector<Duplicada> todas{
      {BAUTISMO,
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
       duplicateStatement},
      {CONFIRMACION,
       CcNodos::INFDUPLICADASCONFIRMACION,
       {{{"Fecha de Confirmación",
          " ORDER BY FechaConfirmacion, Confirmacion.Folio, VAL(Confirmacion.Numero)",
          "+{@FechaConfirmacion},+{@Folio},+{@Numero}"},
         {"Fecha de Creación del Libro",
          " ORDER BY Libro_Confirmacion.FechaCreacion, Confirmacion.Folio, "
          "VAL(Confirmacion.Numero)",
          "+{@FechaCreacion},+{@Folio},+{@Numero}"},
         {"Apellidos del Confirmado",
          " ORDER BY confirmacion.primerapellido, confirmacion.SegundoApellido, "
          "confirmacion.Nombre",
          "+{@Nombre}"}}},
       {"DuplicadasConfirmacion", "Documentos_Confirmacion", Wording::Castellano, nullptr,
        confirmacionDuplicate()},
       confirmacionDuplicateStatement},
      {MATRIMONIO,
       CcNodos::INFDUPLICADASMATRIMONIO,
       {{{"Fecha de Matrimonio",
          " ORDER BY FechaMatrimonio, Matrimonio.Folio, VAL(Matrimonio.Numero)",
          "+{@FechaMatrimonio},+{@Folio},+{@Numero}"},
         {"Fecha de Creación del Libro",
          " ORDER BY Libro_Matrimonio.FechaCreacion, Matrimonio.Folio, VAL(Matrimonio.Numero)",
          "+{@FechaCreacion},+{@Folio},+{@Numero}"},
         {"Apellidos del Matrimonio",
          " ORDER BY Matrimonio_Novios.PrimerApellido, Matrimonio_Novios.SegundoApellido, "
          "Matrimonio_Novias.PrimerApellido, Matrimonio_Novias.SegundoApellido ",
          "+{@Nombre}"}}},
       {"DuplicadasMatrimonio", "Documentos_Matrimonio", Wording::Castellano, nullptr,
        Cargar_Documentos_Matrimonio().matrimonio.columns},
       matrimonioDuplicateStatement,
       PROCESANDO,
       Cargar_Documentos_Matrimonio},
      {DEFUNCION,
       CcNodos::INFDUPLICADASDEFUNCION,
       {{{"Fecha de Defunción",
          " ORDER BY Defuncion_Datos.FechaDefuncion, Defuncion.Folio, VAL(Defuncion.Numero)",
          "+{@FechaDefuncion},+{@Folio},+{@Numero}"},
         {"Fecha de Creación del Libro",
          " ORDER BY Libro_Defuncion.FechaCreacion, Defuncion.Folio, VAL(Defuncion.Numero)",
          "+{@FechaCreacion},+{@Folio},+{@Numero}"},
         {"Apellidos del Difunto",
          " ORDER BY Defuncion.PrimerApellido, Defuncion.SegundoApellido, Defuncion.Nombre",
          "+{@Nombre}"}}},
       {"DuplicadasDefuncion", "Documentos_Defuncion", Wording::Castellano, nullptr,
        defuncionDuplicate()},
       defuncionDuplicateStatement,
       "Procesando vista preliminar..."},
  };
  return todas;
}

const Duplicada* duplicadaDeNodo(std::string_view nodo) {
  for (const Duplicada& duplicada : duplicadas())
    if (nodo == duplicada.nodo || sacramentoDeNodo(nodo, "Partidas") == &duplicada.sacramento)
      return &duplicada;
  return nullptr;
}

}  // namespace fidaleon::documents
