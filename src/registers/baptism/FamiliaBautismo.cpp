// Taking the parents over from a brother or sister in the books.

#include <algorithm>
#include <iterator>

#include "core/statements/Citas.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/common/Guiones.h"
#include "registers/lookup/frmBuscaPadres.h"

namespace fidaleon {

void frmPartidaBautismo::buscar(std::size_t, const std::string& primero,
                                const std::string& segundo) {
  frmBuscaPadres busqueda(contexto_);
  procedimiento("BuscarPadres", [&] {
    store::Recordset filas = conBaseDatos->Execute(
        "SELECT DISTINCT IDBautismo, PrimerApellido, SegundoApellido, CodPadres, CodMadres, "
        "CodMatrimonio FROM Bautismo, Bautismo_Hijo WHERE PrimerApellido = " +
        entreComillas(primero) + " AND SegundoApellido = " + entreComillas(segundo) +
        " AND CodBautismo = IDBautismo" + librosDeBautismoHastaEste());
    for (; !filas.EOF_(); filas.MoveNext()) {
      const auto clave = [&](const char* columna) {
        return static_cast<std::int32_t>(filas.integer(columna));
      };
      // The entry being corrected is no brother of itself.
      if (clave("IDBautismo") == registro_.IDBautismo) continue;
      busqueda.filas.push_back({clave("IDBautismo"), "", filas.text("PrimerApellido"),
                                filas.text("SegundoApellido"), "", clave("CodPadres"),
                                clave("CodMadres"), clave("CodMatrimonio")});
    }
  });
  if (busqueda.filas.empty()) return;
  busqueda.conBaseDatos = conBaseDatos;
  busqueda.Origen = FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO;
  busqueda.strApellidos = segundo == GUIONES ? primero : primero + " " + segundo;
  busqueda.Show();
  if (busqueda.blnAceptado) CargarColeccionDatosImportar(busqueda.importado);
}

void frmPartidaBautismo::CargarColeccionDatosImportar(const cBautismo& importado) {
  procedimiento("CargarColeccionDatosImportar", [&] {
    using B = cBautismo;
    constexpr std::string B::*TEXTOS[] = {
        &B::NombreMadres,         &B::PrimerApellidoMadres,  &B::SegundoApellidoMadres,
        &B::AbueloMadres,         &B::AbuelaMadres,          &B::NombrePadres,
        &B::PrimerApellidoPadres, &B::SegundoApellidoPadres, &B::AbueloPadres,
        &B::AbuelaPadres,         &B::ParroquiaMatrimonio,   &B::DireccionPadresMatrimonio};
    constexpr std::int32_t B::*MUNICIPIOS[] = {
        &B::CodPoblacionMadres,         &B::CodPoblacionAbueloMadres,
        &B::CodPoblacionAbuelaMadres,   &B::CodPoblacionPadres,
        &B::CodPoblacionAbueloPadres,   &B::CodPoblacionAbuelaPadres,
        &B::CodPoblacionMatrMatrimonio, &B::CodPoblacionPadresMatrimonio};
    for (const auto& e : enlaces_.textos)
      if (std::find(std::begin(TEXTOS), std::end(TEXTOS), e.miembro) != std::end(TEXTOS))
        e.campo->setText(importado.*e.miembro);
    for (const auto& e : enlaces_.municipios)
      if (std::find(std::begin(MUNICIPIOS), std::end(MUNICIPIOS), e.miembro) !=
          std::end(MUNICIPIOS))
        e.campo->poner(importado.*e.miembro);
    adtpPartida[FechaMatr].setStored(importado.FechaMatrMatrimonio);
    if (!esAlta()) return;
    registro_.IDMadres = importado.IDMadres;
    registro_.IDPadres = importado.IDPadres;
    registro_.IDMatrimonio = importado.IDMatrimonio;
  });
}

}  // namespace fidaleon
