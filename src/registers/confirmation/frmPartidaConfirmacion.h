#pragma once

#include "registers/confirmation/cConfirmacion.h"
#include "registers/entry/frmPartidaDe.h"

namespace fidaleon {

DatosPartida datosDe(const cConfirmacion& c);
void ponerDatos(cConfirmacion& c, const DatosPartida& d);

/// One entry or request of confirmation.
class frmPartidaConfirmacion : public frmPartidaDe<cConfirmacion> {
 public:
  explicit frmPartidaConfirmacion(Contexto& contexto);

  enum Texto {
    Nombre,
    PrimerApellido,
    SegundoApellido,
    Parroquia,
    Diocesis,
    Ministro,
    CargoMinistro,
    ParroquiaBaut,
    DireccionBaut,
    LibroBaut,
    FolioBaut,
    NumeroBaut,
    Email,
    Telefono,
    Domicilio,
    FeligresDe,
    Padrino,
    NombrePadre,
    NombreMadre,
    NotasMarginales,
    Observaciones
  };
  enum Fecha { FechaConfirmacion, FechaBaut, FechaNac };
  /// Lists; a province's town list is the next number.
  enum Lista {
    Institucion = 0,
    Libro = 1,
    ProvinciaParr = 2,
    ProvinciaBaut = 4,
    ProvinciaNac = 6,
    ProvinciaDomicilio = 8
  };
  enum Pestana { TAB_GENERAL, TAB_CONFIRMACION, TAB_CONFIRMADO, TAB_PERSONALES, TAB_NOTAS };

  forms::Frame fraConfirmado;
  forms::Frame fraBautismo;
  forms::Frame fraNacimiento;
  forms::Frame fraResidencia;
  forms::Frame fraFamilia;

 private:
  void crearCampos();
  forms::Nodes paginas();
  forms::LayoutNode paginaConfirmacion();
  forms::LayoutNode paginaConfirmado();
  forms::LayoutNode paginaPersonales();

  std::span<const FilaLeida<cConfirmacion>> filas() const override;
  std::string sqlRepetida(const cConfirmacion& c) override;
  bool mismosDatos(const cConfirmacion& a, const cConfirmacion& b) const override;
  void importar(std::size_t persona, const frmBuscaPadres& de) override;
};

}  // namespace fidaleon
