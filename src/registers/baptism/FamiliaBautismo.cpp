// Taking the parents over from a brother or sister in the books.

#include <algorithm>
#include <iterator>

#include "core/statements/Citas.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/common/Guiones.h"
#include "registers/lookup/frmBuscaPadres.h"
#include "text/Utf8.h"

namespace fidaleon {

std::pair<std::string, std::string> frmPartidaBautismo::parDeApellidos() const {
  return {nombreGuardado(txtBautismo[PrimerApellidoHijo].text()),
          nombreGuardado(txtBautismo[SegundoApellidoHijo].text())};
}

void frmPartidaBautismo::apellidos_LostFocus(const forms::Control* siguiente) {
  const bool enElPar = siguiente == &txtBautismo[PrimerApellidoHijo] ||
                       siguiente == &txtBautismo[SegundoApellidoHijo];
  if (!enElPar && siguiente != &cmdBautismo[CANCELAR]) BuscarPadres();
}

void frmPartidaBautismo::BuscarPadres() {
  const auto par = parDeApellidos();
  if (par.first == GUIONES || !apellidosBuscados_.insert(par).second) return;
  frmBuscaPadres busqueda(contexto_);
  procedimiento("BuscarPadres", [&] {
    store::Recordset filas = conBaseDatos->Execute(
        "SELECT DISTINCT IDBautismo, PrimerApellido, SegundoApellido, CodPadres, CodMadres, "
        "CodMatrimonio FROM Bautismo, Bautismo_Hijo WHERE PrimerApellido = " +
        entreComillas(par.first) + " AND SegundoApellido = " + entreComillas(par.second) +
        " AND CodBautismo = IDBautismo" + librosHastaEste());
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
  busqueda.strApellidos = par.second == GUIONES ? par.first : par.first + " " + par.second;
  busqueda.Show();
  if (busqueda.blnAceptado) CargarColeccionDatosImportar(busqueda.importado);
}

std::string frmPartidaBautismo::librosHastaEste() {
  std::string libros;
  if (!esSolicitud()) {
    store::Recordset filas = conBaseDatos->Execute(
        "SELECT idlibrobautismo FROM Libro_Bautismo WHERE fechacreacion<=(SELECT fechacreacion "
        "FROM Libro_Bautismo WHERE nombre=" +
        entreComillas(cboBautismo[Libro].text()) + " AND codinstitucion=" +
        std::to_string(cboBautismo[Institucion].data()) + ") ORDER BY fechacreacion DESC");
    for (; !filas.EOF_(); filas.MoveNext())
      libros += (libros.empty() ? "codlibro=" : " OR codlibro=") + filas.text("idlibrobautismo");
  }
  return libros.empty() ? " AND codLibro <> 0" : " AND (" + libros + ")";
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
    for (const auto& e : textos_)
      if (std::find(std::begin(TEXTOS), std::end(TEXTOS), e.miembro) != std::end(TEXTOS))
        e.campo->setText(importado.*e.miembro);
    for (const auto& e : municipios_)
      if (std::find(std::begin(MUNICIPIOS), std::end(MUNICIPIOS), e.miembro) !=
          std::end(MUNICIPIOS))
        e.campo->poner(importado.*e.miembro);
    adtpBautismo[FechaMatr].setStored(importado.FechaMatrMatrimonio);
    if (!esAlta()) return;
    registro_.IDMadres = importado.IDMadres;
    registro_.IDPadres = importado.IDPadres;
    registro_.IDMatrimonio = importado.IDMatrimonio;
  });
}

}  // namespace fidaleon
