#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace fidaleon {

/// One death in memory: a plain bag. Texts, dates and times are as the register keeps them
/// ("yyyymmdd", "HH:mm", "---" for blank); a municipality is a key, 0 for none. An item of a book's
/// list carries the first few columns only until cBaseDatos::ActualizarColeccionDefuncion fills it;
/// an empty Parroquia is the sign of that.
struct cDefuncion {
  /// For documents, never stored.
  std::string Encargado;
  std::string Sacerdote;
  std::string Sacramentos;
  std::string Cementerio;
  std::string FechaInhumacion;
  std::string DomicilioDefn;
  std::int32_t CodMunicipioDefn = 0;
  std::string HoraDefuncion;
  std::string FechaDefuncion;
  std::string Edad;
  std::string Causa;

  bool Anulada = false;
  /// Digits, with or without a letter behind them.
  std::string Numero;
  std::int32_t Folio = 0;
  /// The key of the book, digits.
  std::string CodLibro;
  std::string Observaciones;
  std::string NotasMarginales;
  std::string DiocesisParr;
  std::int32_t CodMunicipioParr = 0;
  std::string Parroquia;
  std::string NombreMadre;
  std::string NombrePadre;
  std::string NombreHijos;
  std::string NumeroHijos;
  std::string Consorte;
  std::string EstadoCivil;
  std::int32_t CodMunicipioActual = 0;
  std::string DomicilioActual;
  std::int32_t CodMunicipioNaturalDe = 0;
  std::string SegundoApellido;
  std::string PrimerApellido;
  std::string Nombre;
  std::int32_t InstitucionSolicitud = 0;
  std::int32_t IDDifunto = 0;

  /// The table holds it.
  bool Estado = false;
  /// What is still to be done to it, a cCOperacion as text (registers/common/Operacion.h); empty
  /// when nothing is.
  std::string Operacion;

  std::string Parroco;
  std::string NombreContacto;
  std::string ApellidoContacto;
  std::string Apellido2Contacto;
  std::string TelefonoContacto;
  std::string EmailContacto;
  std::string RelacionDifunto;
};

/// The working copy of a book's list. Whoever lists the book owns it; dialogs change it in place.
using ColeccionDefuncion = std::vector<cDefuncion>;

}  // namespace fidaleon
