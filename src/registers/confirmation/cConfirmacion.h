#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace fidaleon {

/// One confirmation in memory: a plain bag. Texts and dates are as the register keeps them
/// ("yyyymmdd", "---" for blank); a municipality is a key, 0 for none. An item of a book's list
/// carries the first few columns only until cBaseDatos::ActualizarColeccionConfirmacion fills it;
/// an empty Parroquia is the sign of that.
struct cConfirmacion {
  std::int32_t IDConfirmacion = 0;
  /// The institution of a request, 0 for an entry of a book.
  std::int32_t InstitucionSolicitud = 0;
  std::string Nombre;
  std::string PrimerApellido;
  std::string SegundoApellido;
  std::string FechaNac;
  std::int32_t CodMunicipioNac = 0;
  std::string NombrePadre;
  std::string NombreMadre;
  std::string Domicilio;
  std::int32_t CodMunicipioDomicilio = 0;
  std::string FeligresDe;
  std::string EmailConfirmado;
  std::string TelefonoConfirmado;
  std::string Parroquia;
  std::int32_t CodMunicipioParr = 0;
  std::string DiocesisParr;
  std::string NotasMarginales;
  std::string Observaciones;
  std::int32_t CodLibro = 0;
  std::int32_t Folio = 0;
  /// Digits, with or without a letter behind them.
  std::string Numero;
  bool Anulada = false;

  std::string FechaConfirmacion;
  std::string Padrino;
  std::string MinistroPrinc;
  std::string CargoMinistro;

  // The baptism as it was told, wherever it stands.
  std::string FechaBaut;
  std::string ParroquiaBaut;
  std::string DireccionBaut;
  std::int32_t CodMunicipioBaut = 0;
  std::string LibroBaut;
  std::int32_t FolioBaut = 0;
  std::string NumeroBaut;

  /// The table holds it.
  bool Estado = false;
  /// What is still to be done to it, a cCOperacion as text (registers/common/Operacion.h); empty
  /// when nothing is.
  std::string Operacion;

  // Of the notices alone, never stored.
  std::string InstitucionTipo;
  std::string Encargado;
};

/// The working copy of a book's list. Whoever lists the book owns it; dialogs change it in place.
using ColeccionConfirmacion = std::vector<cConfirmacion>;

}  // namespace fidaleon
