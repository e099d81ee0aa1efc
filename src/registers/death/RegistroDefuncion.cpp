// The record of the dialog of deaths: its rows, the same entry elsewhere, and what is proposed.

#include <array>

#include "registers/common/Guiones.h"
#include "registers/death/TablasDefuncion.h"
#include "registers/death/frmPartidaDefuncion.h"
#include "registers/entry/Iguales.h"
#include "registers/lookup/Importacion.h"

namespace fidaleon {

namespace {

using D = cDefuncion;

#define TEXTO(miembro) \
  { #miembro, #miembro, &D::miembro, Cita::Texto }
#define NUMERO(miembro) \
  { #miembro, #miembro, &D::miembro, Cita::Numero }

/// What two entries share that are the same death.
constexpr Columna<D> MISMA[] = {
    TEXTO(Nombre),          TEXTO(PrimerApellido),
    TEXTO(SegundoApellido), NUMERO(CodMunicipioNaturalDe),
    TEXTO(DomicilioActual), NUMERO(CodMunicipioActual),
    TEXTO(EstadoCivil),     TEXTO(Consorte),
    TEXTO(NombrePadre),     TEXTO(NombreMadre),
    TEXTO(Causa),           TEXTO(Edad),
    TEXTO(FechaDefuncion),  TEXTO(HoraDefuncion),
    TEXTO(DomicilioDefn),   NUMERO(CodMunicipioDefn),
    TEXTO(FechaInhumacion), TEXTO(Cementerio),
    TEXTO(Sacramentos),     TEXTO(Sacerdote),
};

}  // namespace

DatosPartida datosDe(const cDefuncion& d) {
  return {.id = d.IDDifunto,
          .libro = static_cast<std::int32_t>(text::toInteger(d.CodLibro).value_or(0)),
          .institucion = d.InstitucionSolicitud,
          .folio = std::to_string(d.Folio),
          .numero = d.Numero,
          .anulada = d.Anulada};
}

void ponerDatos(cDefuncion& r, const DatosPartida& d) {
  r.IDDifunto = d.id;
  r.CodLibro = std::to_string(d.libro);
  r.InstitucionSolicitud = d.institucion;
  r.Folio = static_cast<std::int32_t>(text::toInteger(d.folio).value_or(0));
  r.Numero = d.numero;
  r.Anulada = d.anulada;
}

std::span<const FilaLeida<D>> frmPartidaDefuncion::filas() const {
  static constexpr std::array<FilaLeida<D>, 2> FILAS{{
      {&TABLA_DEFUNCION, "SELECT * FROM Defuncion WHERE IDDifunto=", &D::IDDifunto},
      {&TABLA_DEFUNCION_DATOS, "SELECT * FROM Defuncion_Datos WHERE CodDifunto = ", &D::IDDifunto},
  }};
  return FILAS;
}

std::string frmPartidaDefuncion::sqlRepetida(const D& d) {
  return "SELECT * FROM Defuncion, Defuncion_Datos WHERE " + condicionIguales<D>(MISMA, d) +
         " AND Defuncion.IDDifunto = Defuncion_Datos.CodDifunto";
}

bool frmPartidaDefuncion::mismosDatos(const D& a, const D& b) const {
  return iguales<D>(MISMA, a, b);
}

void frmPartidaDefuncion::importar(std::size_t, const frmBuscaPadres& de) {
  importarBautizado(importadoDeDefuncion(), de.bautizado);
}

void frmPartidaDefuncion::preestablecer() {
  const store::Recordset fila = filaDeInstitucion();
  if (fila.EOF_()) return;
  proponer(txtPartida[Parroquia], fila.text("InstitucionNombre"));
  proponer(txtPartida[DiocesisParr], fila.text("Diocesis"));
  for (const Texto cura : {Sacerdote, Parroco}) proponer(txtPartida[cura], fila.text("Parroco"));
  for (const auto& [par, miembro] : enlaces_.municipios)
    proponer(*par, static_cast<std::int32_t>(fila.integer("CodMunicipio")));
}

}  // namespace fidaleon
