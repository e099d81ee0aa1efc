#pragma once

#include "registers/baptism/cBautismo.h"
#include "registers/entry/frmPartidaDe.h"

namespace fidaleon {

DatosPartida datosDe(const cBautismo& b);
void ponerDatos(cBautismo& b, const DatosPartida& d);

/// One entry or request of baptism.
class frmPartidaBautismo : public frmPartidaDe<cBautismo> {
 public:
  explicit frmPartidaBautismo(Contexto& contexto);

  enum Texto {
    NombreHijo = 7,
    PrimerApellidoHijo = 8,
    SegundoApellidoHijo = 9,
    DireccionNac = 10,
    NombrePadre = 11,
    PrimerApellidoPadre,
    SegundoApellidoPadre,
    AbueloPaterno,
    AbuelaPaterna = 15,
    NombreMadre = 16,
    PrimerApellidoMadre,
    SegundoApellidoMadre,
    AbueloMaterno,
    AbuelaMaterna = 20,
    ParroquiaMatrimonio = 21,
    DireccionPadres = 22,
    NotasMarginales,
    Observaciones,
    MinistroCargo,
    Padrino = 28,
    Madrina,
    Ministro,
    ParroquiaBautismo,
    DiocesisBautismo = 32,
    TelefonoPadre,
    EmailPadre,
    TelefonoMadre,
    EmailMadre,
    TelefonoPadres,
    DiocesisMatrimonio
  };
  /// Fields that not every edition shows, and the parents' professions.
  enum TextoSC {
    PadreProfesion,
    MadreProfesion,
    PadreParroquia,
    MadreParroquia,
    AbueloPatParroquia,
    AbuelaPatParroquia,
    AbueloMatParroquia,
    AbuelaMatParroquia,
    EdadPadrino,
    EdadMadrina,
    DomicilioPadrino,
    DomicilioMadrina,
    ProfesionPadrino,
    ProfesionMadrina,
    NaturalPadrino,
    NaturalMadrina,
    EstatPadrino,
    EstatMadrina
  };
  enum Fecha { FechaNac, FechaMatr, FechaBautismo };
  /// Lists; a province's town list is the next number.
  enum Lista {
    ProvinciaNac = 0,
    ProvinciaPadre = 2,
    ProvinciaAbueloPaterno = 4,
    ProvinciaAbuelaPaterna = 6,
    ProvinciaMadre = 8,
    ProvinciaAbueloMaterno = 10,
    ProvinciaAbuelaMaterna = 12,
    ProvinciaMatrimonio = 14,
    ProvinciaDomicilio = 16,
    ProvinciaBautismo = 18,
    Sexo = 20,
    Institucion = 22,
    Libro = 23,
    ProvinciaParroquiaPadre = 24,
    ProvinciaParroquiaMadre = 26,
    ProvinciaParroquiaAbueloPat = 28,
    ProvinciaParroquiaAbuelaPat = 30,
    ProvinciaParroquiaAbueloMat = 32,
    ProvinciaParroquiaAbuelaMat = 34
  };
  enum Pestana {
    TAB_GENERAL,
    TAB_BAUTIZADO,
    TAB_PADRE,
    TAB_MADRE,
    TAB_MATRIMONIO,
    TAB_BAUTISMO,
    TAB_NOTAS
  };

  forms::ControlArray<forms::TextBox> txtSC;
  forms::TimeField txtHoraNac;
  forms::Frame fraPadre;
  forms::Frame fraAbuelosPaternos;
  forms::Frame fraMadre;
  forms::Frame fraAbuelosMaternos;
  forms::Frame fraMatrimonio;
  forms::Frame fraDomicilio;
  forms::Frame fraPadrinos;

 private:
  // Fields and layout
  void crearCampos();
  void crearCamposDeEdicion();
  forms::Nodes paginas();
  forms::LayoutNode paginaBautizado();
  forms::LayoutNode paginaMatrimonio();
  forms::LayoutNode paginaBautismo();
  forms::LayoutNode progenitor(Texto nombre, TextoSC profesion, TextoSC parroquia, Lista provincia,
                               Lista provinciaParroquia, Texto telefono);
  /// Both grandparents of one side, the grandfather's controls given.
  forms::LayoutNode abuelos(Texto abuelo, Lista provincia, TextoSC parroquia,
                            Lista provinciaParroquia);

  // The record
  std::span<const FilaLeida<cBautismo>> filas() const override;
  void completarEdicion(cBautismo& b) const override;
  bool ComprobarCambios(cBautismo& nuevo) const override;
  std::string sqlRepetida(const cBautismo& b) override;
  bool mismosDatos(const cBautismo& a, const cBautismo& b) const override;

  // Family from earlier entries
  void importar(std::size_t persona, const frmBuscaPadres& de) override;
  std::int32_t bautismoPropio() const override { return registro_.IDBautismo; }
};

}  // namespace fidaleon
