// The record of the baptism dialog, to and from the store.

#include <array>

#include "registers/baptism/TablasBautismo.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/lookup/Importacion.h"

namespace fidaleon {

DatosPartida datosDe(const cBautismo& b) {
  return {.id = b.IDBautismo,
          .libro = b.CodLibroBautismo,
          .institucion = b.CodInstitucionBautismo,
          .folio = b.FolioBautismo,
          .numero = b.NumeroBautismo,
          .anulada = b.AnuladaBautismo};
}

void ponerDatos(cBautismo& b, const DatosPartida& d) {
  b.IDBautismo = b.CodBautismo = d.id;
  b.IDLibroBautismo = b.CodLibroBautismo = d.libro;
  b.CodInstitucionBautismo = static_cast<std::uint8_t>(d.institucion);
  b.FolioBautismo = d.folio;
  b.NumeroBautismo = d.numero;
  b.AnuladaBautismo = d.anulada;
}

std::span<const FilaLeida<cBautismo>> frmPartidaBautismo::filas() const {
  using B = cBautismo;
  static constexpr std::array<FilaLeida<B>, 5> FILAS{{
      {&TABLA_BAUTISMO, "SELECT * FROM bautismo WHERE idbautismo=", &B::IDBautismo},
      {&TABLA_HIJO, "SELECT * FROM bautismo_hijo WHERE codbautismo=", &B::IDBautismo},
      {&TABLA_MADRES, "SELECT * FROM bautismo_madres WHERE idmadres=", &B::CodMadres},
      {&TABLA_PADRES, "SELECT * FROM bautismo_padres WHERE idpadres=", &B::CodPadres},
      {&TABLA_MATRIMONIO,
       "SELECT * FROM bautismo_matrimonio WHERE idmatrimonio=", &B::CodMatrimonio},
  }};
  return FILAS;
}

void frmPartidaBautismo::completarEdicion(cBautismo& b) const {
  if (Operacion != FDAPI::cCOperacion::EDITAR || desdeLista()) return;
  const store::Recordset enlaces = conBaseDatos->Execute(
      "SELECT codpadres,codmadres,codmatrimonio FROM bautismo WHERE idbautismo=" +
      std::to_string(b.IDBautismo));
  b.CodPadres = static_cast<std::int32_t>(enlaces.integer("codpadres"));
  b.CodMadres = static_cast<std::int32_t>(enlaces.integer("codmadres"));
  b.CodMatrimonio = static_cast<std::int32_t>(enlaces.integer("codmatrimonio"));
}

void frmPartidaBautismo::importar(std::size_t, const frmBuscaPadres& de) {
  enlaces_.mostrarLoQue([&](cBautismo& b) { copiarFamilia(de.importado, b); });
  if (!esAlta()) return;
  for (const forms::Frame* grupo : {&fraPadre, &fraAbuelosPaternos, &fraMadre, &fraAbuelosMaternos,
                                    &fraMatrimonio, &fraDomicilio})
    darPorHecho(*grupo);
  registro_.IDMadres = de.importado.IDMadres;
  registro_.IDPadres = de.importado.IDPadres;
  registro_.IDMatrimonio = de.importado.IDMatrimonio;
}

}  // namespace fidaleon
