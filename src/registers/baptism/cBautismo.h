#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// One baptism in memory: a plain bag. Texts, dates and times are as the register keeps them
/// ("yyyymmdd", "HH:mm", "---" for blank); a municipality is a key, 0 for none. An item of a book's
/// list carries the first few columns only until cBaseDatos::ActualizarColeccion fills it; an empty
/// SexoHijo is the sign of that.
struct cBautismo {
  std::string Encargado;
  std::int32_t IDLibroBautismo = 0;
  bool ModificarMatrimonio = false;
  bool ModificarPadre = false;
  bool ModificarMadre = false;
  bool EliminarMatrimonio = false;
  bool EliminarPadre = false;
  bool EliminarMadre = false;
  /// What of the shared rows an update has to write.
  bool CambioMatrimonio = false;
  bool CambioPadre = false;
  bool CambioMadre = false;
  std::string NumeroBautismo;
  std::int32_t CodMatrimonio = 0;
  std::int32_t CodMadres = 0;
  std::int32_t CodPadres = 0;
  std::int32_t IDBautismo = 0;
  std::int32_t IDMatrimonio = 0;
  std::int32_t CodBautismo = 0;
  std::int32_t IDMadres = 0;
  std::int32_t IDPadres = 0;
  /// The table holds it.
  bool Estado = false;
  /// What is still to be done to it; value-initialised when nothing is.
  FDAPI::cCOperacion Operacion{};

  /// The institution of a request, 0 for an entry of a book.
  std::uint8_t CodInstitucionBautismo = 0;
  bool AnuladaBautismo = false;
  /// Digits.
  std::string FolioBautismo;
  std::int32_t CodLibroBautismo = 0;
  std::string ObservacionesBautismo;
  std::string NotasMarginalesBautismo;
  std::string DiocesisBautismo;
  std::int32_t CodPoblacionBautismo = 0;
  std::string ParroquiaBautismo;
  std::string MinistroBautismo;
  std::string MadrinaBautismo;
  std::string PadrinoBautismo;
  std::string FechaBautismo;

  std::int32_t CodPoblacionPadresMatrimonio = 0;
  std::string DireccionPadresMatrimonio;
  std::int32_t CodPoblacionMatrMatrimonio = 0;
  std::string FechaMatrMatrimonio;
  std::string ParroquiaMatrimonio;

  std::int32_t CodPoblacionAbuelaPadres = 0;
  std::string AbuelaPadres;
  std::int32_t CodPoblacionAbueloPadres = 0;
  std::string AbueloPadres;
  std::int32_t CodPoblacionPadres = 0;
  std::string SegundoApellidoPadres;
  std::string PrimerApellidoPadres;
  std::string NombrePadres;

  std::int32_t CodPoblacionAbuelaMadres = 0;
  std::string AbuelaMadres;
  std::int32_t CodPoblacionAbueloMadres = 0;
  std::string AbueloMadres;
  std::int32_t CodPoblacionMadres = 0;
  std::string SegundoApellidoMadres;
  std::string PrimerApellidoMadres;
  std::string NombreMadres;

  std::int32_t CodPoblacionNacHijo = 0;
  std::string DireccionNacHijo;
  std::string HoraNacHijo;
  std::string FechaNacHijo;
  /// "Hombre", "Mujer" or "---".
  std::string SexoHijo;
  std::string SegundoApellidoHijo;
  std::string PrimerApellidoHijo;
  std::string NombreHijo;

  std::string EdadPadrino;
  std::string EdadMadrina;
  std::string ParroquiaDomicilioPadrino;
  std::string ParroquiaDomicilioMadrina;
  std::string MinistroCargo;
  std::string PadreParroquiaBaut;
  std::int32_t PadreCodMunicipioParrBaut = 0;
  std::string PadreProfesion;
  std::string AbueloPatParroquiaBaut;
  std::int32_t AbueloPatCodMunicipioParrBaut = 0;
  std::string AbuelaPatParroquiaBaut;
  std::int32_t AbuelaPatCodMunicipioParrBaut = 0;
  std::string MadreParroquiaBaut;
  std::int32_t MadreCodMunicipioParrBaut = 0;
  std::string MadreProfesion;
  std::string AbueloMatParroquiaBaut;
  std::int32_t AbueloMatCodMunicipioParrBaut = 0;
  std::string AbuelaMatParroquiaBaut;
  std::int32_t AbuelaMatCodMunicipioParrBaut = 0;
  std::string TelefonoPadres;
  std::string TelefonoPadre;
  std::string EmailPadre;
  std::string TelefonoMadre;
  std::string EmailMadre;
  std::string DiocesisMatrimonio;
  std::string ProfesionPadrino;
  std::string NaturalPadrino;
  std::string EstatPadrino;
  std::string ProfesionMadrina;
  std::string NaturalMadrina;
  std::string EstatMadrina;
};

/// The working copy of a book's list. Whoever lists the book owns it; dialogs change it in place.
using ColeccionBautismo = std::vector<cBautismo>;

}  // namespace fidaleon
