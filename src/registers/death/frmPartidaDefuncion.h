#pragma once

#include "registers/death/cDefuncion.h"
#include "registers/entry/frmPartidaDe.h"

namespace fidaleon {

DatosPartida datosDe(const cDefuncion& d);
void ponerDatos(cDefuncion& r, const DatosPartida& d);

/// One entry of the register of deaths. There are no requests of death.
class frmPartidaDefuncion : public frmPartidaDe<cDefuncion> {
 public:
  explicit frmPartidaDefuncion(Contexto& contexto);

  enum Texto {
    Parroquia,
    DiocesisParr,
    Parroco,
    Cementerio,
    Nombre,
    PrimerApellido,
    SegundoApellido,
    Consorte,
    DomicilioActual,
    Causa,
    DomicilioDefn,
    Edad,
    NombrePadre,
    NombreMadre,
    NumeroHijos,
    NombresHijos,
    Sacramentos,
    Sacerdote,
    Observaciones,
    NotasMarginales,
    NombreContacto,
    PrimerApellidoContacto,
    SegundoApellidoContacto,
    TelefonoContacto,
    EmailContacto,
    RelacionDifunto,
    EstadoCivil
  };
  enum Fecha { FechaInhumacion, FechaDefuncion };
  /// Lists; a province's town list is the next number.
  enum Lista {
    ProvinciaParr = 0,
    ProvinciaActual = 2,
    ProvinciaDefn = 4,
    ProvinciaNaturalDe = 6,
    Institucion = 8,
    Libro = 9
  };
  enum Pestana { TAB_GENERAL, TAB_PARROQUIA, TAB_DIFUNTO, TAB_FAMILIA, TAB_NOTAS };

  forms::TimeField txtHoraDefuncion;
  forms::Frame fraContacto;

 private:
  // Fields and layout
  void crearCampos();
  forms::Nodes paginas();

  // The record
  std::span<const FilaLeida<cDefuncion>> filas() const override;
  std::string sqlRepetida(const cDefuncion& d) override;
  bool mismosDatos(const cDefuncion& a, const cDefuncion& b) const override;

  // The sacrament's own
  void importar(std::size_t persona, const frmBuscaPadres& de) override;
  void preestablecer() override;
};

}  // namespace fidaleon
