#include "documents/cInformes.h"

#include <optional>

#include "core/dialogs/Guard.h"
#include "documents/EscribirFilas.h"
#include "documents/Miembros.h"
#include "documents/ProgresoImpresion.h"
#include "setup/SelecEncargado.h"
#include "store/Transaction.h"

namespace fidaleon {

void cInformes::escribir(const char* miembro, FDAPI::Conexion& conFidaleon,
                         FDAPI::Conexion& conInformes, std::int32_t lngID,
                         const documents::Signature& signature) {
  guarded(contexto_, "cInformes", miembro, [&] {
    const documents::Miembro& escrito = documents::miembro(miembro);
    store::Transaction transaction(conInformes);
    documents::Lookups lookups(contexto_, conFidaleon);
    const forms::Hourglass hourglass(contexto_.ui());
    if (!escrito.check || documents::hayPartidas(conFidaleon, escrito.check, lngID)) {
      store::Recordset entries = conFidaleon.Execute(escrito.rows(lngID));
      documents::RowStatements rows(escrito.kind, signature, lookups, entries);
      const auto fidaleon = contexto_.fidaleon();
      std::optional<documents::ProgresoImpresion> progreso;
      if (escrito.check) progreso.emplace(*fidaleon, entries.RecordCount());
      documents::escribirFilas(rows, entries, conInformes, [&](std::int32_t fila) {
        if (escrito.readBack) conInformes.Execute(escrito.readBack).Close();
        if (progreso) progreso->avanzar(fila);
      });
    }
    transaction.commit();
  });
}

void cInformes::escribir(const char* miembro, FDAPI::Conexion& conFidaleon,
                         FDAPI::Conexion& conInformes, std::int32_t lngID) {
  escribir(miembro, conFidaleon, conInformes, lngID, {"", contexto_.hoy()});
}

void cInformes::escribirConFecha(const char* miembro, const char* sacramento,
                                 FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                 std::int32_t lngID) {
  std::string encargado;
  std::string fecha = contexto_.hoy();
  guarded(contexto_, "cInformes", miembro,
          [&] { SelecEncargado(contexto_, conFidaleon, sacramento, lngID, fecha, encargado); });
  escribir(miembro, conFidaleon, conInformes, lngID, {"", fecha});
}

}  // namespace fidaleon
