// The record of the confirmation dialog, to and from the store.

#include <array>

#include "registers/confirmation/TablasConfirmacion.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"
#include "registers/entry/Iguales.h"
#include "registers/lookup/Importacion.h"
#include "text/Numbers.h"

namespace fidaleon {

using C = cConfirmacion;

namespace {

/// Two entries with the same in these are of the same person.
constexpr std::array<Columna<C>, 6> PERSONA{{
    {"Nombre", "Nombre", &C::Nombre, Cita::Texto},
    {"PrimerApellido", "PrimerApellido", &C::PrimerApellido, Cita::Texto},
    {"SegundoApellido", "SegundoApellido", &C::SegundoApellido, Cita::Texto},
    {"FechaNac", "FechaNac", &C::FechaNac, Cita::Texto},
    {"NombrePadre", "NombrePadre", &C::NombrePadre, Cita::Texto},
    {"NombreMadre", "NombreMadre", &C::NombreMadre, Cita::Texto},
}};

}  // namespace

DatosPartida datosDe(const C& c) {
  return {.id = c.IDConfirmacion,
          .libro = c.CodLibro,
          .institucion = c.InstitucionSolicitud,
          .folio = std::to_string(c.Folio),
          .numero = c.Numero,
          .anulada = c.Anulada};
}

void ponerDatos(C& c, const DatosPartida& d) {
  c.IDConfirmacion = d.id;
  c.CodLibro = d.libro;
  c.InstitucionSolicitud = d.institucion;
  c.Folio = text::toInteger(d.folio).value_or(0);
  c.Numero = d.numero;
  c.Anulada = d.anulada;
}

std::span<const FilaLeida<C>> frmPartidaConfirmacion::filas() const {
  static constexpr std::array<FilaLeida<C>, 3> FILAS{{
      {&TABLA_CONFIRMACION, "SELECT * FROM confirmacion WHERE idconfirmacion=", &C::IDConfirmacion},
      {&TABLA_CONFIRMACION_BAUTISMO,
       "SELECT * FROM confirmacion_Bautismo WHERE codconfirmacion=", &C::IDConfirmacion},
      {&TABLA_CONFIRMACION_DATOS,
       "SELECT * FROM confirmacion_datos WHERE codconfirmacion=", &C::IDConfirmacion},
  }};
  return FILAS;
}

std::string frmPartidaConfirmacion::sqlRepetida(const C& c) {
  return "SELECT IDConfirmacion FROM Confirmacion WHERE " + condicionIguales<C>(PERSONA, c);
}

bool frmPartidaConfirmacion::mismosDatos(const C& a, const C& b) const {
  return iguales<C>(PERSONA, a, b);
}

void frmPartidaConfirmacion::importar(std::size_t, const frmBuscaPadres& de) {
  importarBautizado(importadoDeConfirmacion(), de.bautizado);
}

}  // namespace fidaleon
