#include "documents/cInformes.h"

#include "core/contract/Guard.h"
#include "documents/EscribirFilas.h"
#include "documents/ProgresoImpresion.h"
#include "store/Transaction.h"

namespace fidaleon {

void cInformes::escribirDocumento(const documents::DocumentKind& kind, FDAPI::Conexion& conFidaleon,
                                  FDAPI::Conexion& conInformes, const std::string& statement,
                                  const documents::Signature& signature, const char* readBack) {
  guarded(contexto_, "cInformes", kind.member, [&] {
    store::Transaction transaction(conInformes);
    documents::Lookups lookups(contexto_, conFidaleon);
    const forms::Hourglass hourglass(contexto_.ui());
    const store::Recordset entry = conFidaleon.Execute(statement);
    if (!entry.EOF_()) {
      conInformes.Execute(documents::insertStatement(kind, entry, signature, lookups));
      if (readBack) conInformes.Execute(readBack).Close();
    }
    transaction.commit();
  });
}

void cInformes::escribirLibro(const documents::DocumentKind& kind, FDAPI::Conexion& conFidaleon,
                              FDAPI::Conexion& conInformes, const std::string& check,
                              const std::string& statement) {
  guarded(contexto_, "cInformes", kind.member, [&] {
    store::Transaction transaction(conInformes);
    documents::Lookups lookups(contexto_, conFidaleon);
    const forms::Hourglass hourglass(contexto_.ui());
    if (!conFidaleon.Execute(check).EOF_()) {
      store::Recordset entries = conFidaleon.Execute(statement);
      const documents::Signature signature{"", contexto_.hoy()};
      documents::RowStatements rows(kind, signature, lookups, entries);
      const auto fidaleon = contexto_.fidaleon();
      documents::ProgresoImpresion progreso(*fidaleon, entries.RecordCount());
      documents::escribirFilas(rows, entries, conInformes,
                               [&](std::int32_t fila) { progreso.avanzar(fila); });
    }
    transaction.commit();
  });
}

}  // namespace fidaleon
