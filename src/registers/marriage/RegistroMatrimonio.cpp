// The record of the dialog of marriages: its rows and the same entry elsewhere.

#include <array>

#include "registers/entry/Iguales.h"
#include "registers/lookup/Importacion.h"
#include "registers/marriage/TablasMatrimonio.h"
#include "registers/marriage/frmPartidaMatrimonio.h"

namespace fidaleon {

namespace {

using M = cMatrimonio;

#define DEL(persona, columna) \
  { "Matrimonio_" #persona "s." #columna, #columna, &M::persona##columna, Cita::Texto }
#define DATOS(persona)                                                               \
  DEL(persona, Nombre), DEL(persona, PrimerApellido), DEL(persona, SegundoApellido), \
      DEL(persona, DNI), DEL(persona, DomicilioActual)

/// What two entries share that are the same marriage.
constexpr Columna<M> MISMOS[] = {DATOS(Novio), DATOS(Novia)};

}  // namespace

DatosPartida datosDe(const M& m) {
  return {.id = m.IDMatrimonio,
          .libro = m.IDLibro,
          .institucion = m.InstitucionSolicitud,
          .folio = std::to_string(m.Folio),
          .numero = m.Numero,
          .anulada = m.Anulada};
}

void ponerDatos(M& m, const DatosPartida& d) {
  m.IDMatrimonio = d.id;
  m.IDLibro = d.libro;
  m.InstitucionSolicitud = d.institucion;
  m.Folio = static_cast<std::int32_t>(text::toInteger(d.folio).value_or(0));
  m.Numero = d.numero;
  m.Anulada = d.anulada;
}

std::span<const FilaLeida<M>> frmPartidaMatrimonio::filas() const {
  static constexpr std::array<FilaLeida<M>, 9> FILAS{{
      {&TABLA_MATRIMONIOS, "SELECT * FROM matrimonio WHERE idmatrimonio=", &M::IDMatrimonio},
      {&TABLA_COMPROMISO,
       "SELECT * FROM matrimonio_compromiso WHERE codmatrimonio=", &M::IDMatrimonio},
      {&TABLA_EXPEDIENTE,
       "SELECT * FROM matrimonio_expediente WHERE codmatrimonio=", &M::IDMatrimonio},
      {&TABLA_NOVIAS, "SELECT * FROM matrimonio_novias WHERE idnovias=", &M::IDNovias},
      {&TABLA_NOVIAS_REGCIVIL,
       "SELECT * FROM matrimonio_novias_regcivil WHERE codnovias=", &M::IDNovias},
      {&TABLA_NOVIAS_BAUTISMO,
       "SELECT * FROM matrimonio_novias_bautismo WHERE codnovias=", &M::IDNovias},
      {&TABLA_NOVIOS, "SELECT * FROM matrimonio_novios WHERE idnovios=", &M::IDNovios},
      {&TABLA_NOVIOS_REGCIVIL,
       "SELECT * FROM matrimonio_novios_regcivil WHERE codnovios=", &M::IDNovios},
      {&TABLA_NOVIOS_BAUTISMO,
       "SELECT * FROM matrimonio_novios_bautismo WHERE codnovios=", &M::IDNovios},
  }};
  return FILAS;
}

void frmPartidaMatrimonio::completarEdicion(M& m) const {
  if (desdeLista()) return;
  const store::Recordset enlaces =
      conBaseDatos->Execute("SELECT CodNovios, CodNovias FROM matrimonio WHERE IDMatrimonio=" +
                            std::to_string(m.IDMatrimonio));
  m.IDNovios = static_cast<std::int32_t>(enlaces.integer("CodNovios"));
  m.IDNovias = static_cast<std::int32_t>(enlaces.integer("CodNovias"));
}

std::string frmPartidaMatrimonio::sqlRepetida(const M& m) {
  return "SELECT IDMatrimonio FROM Matrimonio, Matrimonio_Novios, Matrimonio_Novias WHERE "
         "CodNovias = IDNovias AND CodNovios = IDNovios AND " +
         condicionIguales<M>(MISMOS, m);
}

bool frmPartidaMatrimonio::ComprobarCambios(M& nuevo) const {
  return frmPartidaDe::ComprobarCambios(nuevo) ||
         registro_.ExamenesEnEspera != nuevo.ExamenesEnEspera;
}

bool frmPartidaMatrimonio::mismosDatos(const M& a, const M& b) const {
  return iguales<M>(MISMOS, a, b);
}

}  // namespace fidaleon
