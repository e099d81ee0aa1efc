#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// One marriage in memory, entry of a book or dossier under way: a plain bag. Texts and dates are
/// as the register keeps them ("yyyymmdd", "---" for blank), the hour "HH:mm"; a municipality is a
/// key, 0 for none. An item of a book's list carries the first few columns only until
/// cBaseDatos::ActualizarColeccionMatrimonio fills it; an empty Parroquia is the sign of that.
struct cMatrimonio {
  std::int32_t IDMatrimonio = 0;
  std::int32_t IDNovios = 0;
  std::int32_t IDNovias = 0;
  /// The institution of a request, 0 for an entry of a book.
  std::int32_t InstitucionSolicitud = 0;
  std::string Parroquia;
  std::int32_t IDMunicipio = 0;
  std::string Diocesis;
  std::string NotasMarginales;
  std::string Observaciones;
  /// 0 for a request.
  std::int32_t IDLibro = 0;
  std::int32_t Folio = 0;
  /// Digits, with or without a letter behind them.
  std::string Numero;
  bool Anulada = false;

  std::string NovioNombre;
  std::string NovioPrimerApellido;
  std::string NovioSegundoApellido;
  /// Digits, "-", letter.
  std::string NovioDNI;
  /// Whole years on the day of the marriage.
  std::string NovioEdad;
  std::string NovioReligion;
  std::string NovioFechaNac;
  std::int32_t NovioIDMunicipioNac = 0;
  std::string NovioDomicilioActual;
  std::int32_t NovioIDMunicipioActual = 0;
  std::string NovioDomicilioAnterior;
  std::int32_t NovioIDMunicipioAnterior = 0;
  std::string NovioFechaConfirmacion;
  std::int32_t NovioCodMunicipioConfirmacion = 0;
  /// Time of residence at the present address.
  std::uint8_t NovioTResidenciaDomAct = 0;
  std::string NovioProfesion;
  std::string NovioDiocesisNac;
  std::string NovioNacionalidad;
  std::string EmailNovio;
  std::string TelefonoNovio;
  std::string ParroquiaExhortoNovio;
  std::string PoblacionExhortoNovio;
  std::string DiocesisExhortoNovio;
  std::string NovioEstadoCivil;
  std::string NovioNombrePadre;
  std::string NovioNombreMadre;
  std::string NovioMunicipioInscrito;
  std::string NovioTomo;
  std::string NovioPagina;
  std::string NovioNombreCivil;
  std::string NovioSujetoDerecho;
  // The baptism as it was told, wherever it stands.
  std::string NovioFechaBaut;
  std::string NovioParroquiaBaut;
  std::string NovioDiocesisBaut;
  std::int32_t NovioIDMunicipioBaut = 0;
  std::string NovioLibroBaut;
  std::int32_t NovioFolioBaut = 0;
  std::string NovioNumeroBaut;

  std::string NoviaNombre;
  std::string NoviaPrimerApellido;
  std::string NoviaSegundoApellido;
  std::string NoviaDNI;
  std::string NoviaEdad;
  std::string NoviaReligion;
  std::string NoviaFechaNac;
  std::int32_t NoviaIDMunicipioNac = 0;
  std::string NoviaDomicilioActual;
  std::int32_t NoviaIDMunicipioActual = 0;
  std::string NoviaDomicilioAnterior;
  std::int32_t NoviaIDMunicipioAnterior = 0;
  std::string NoviaFechaConfirmacion;
  std::int32_t NoviaCodMunicipioConfirmacion = 0;
  std::uint8_t NoviaTResidenciaDomAct = 0;
  std::string NoviaProfesion;
  std::string NoviaDiocesisNac;
  std::string NoviaNacionalidad;
  std::string EmailNovia;
  std::string TelefonoNovia;
  std::string ParroquiaExhortoNovia;
  std::string PoblacionExhortoNovia;
  std::string DiocesisExhortoNovia;
  std::string NoviaEstadoCivil;
  std::string NoviaNombrePadre;
  std::string NoviaNombreMadre;
  std::string NoviaMunicipioInscrito;
  std::string NoviaTomo;
  std::string NoviaPagina;
  std::string NoviaNombreCivil;
  std::string NoviaSujetoDerecho;
  std::string NoviaFechaBaut;
  std::string NoviaParroquiaBaut;
  std::string NoviaDiocesisBaut;
  std::int32_t NoviaIDMunicipioBaut = 0;
  std::string NoviaLibroBaut;
  std::int32_t NoviaFolioBaut = 0;
  std::string NoviaNumeroBaut;

  std::string FechaMatrimonio;
  std::string HoraMatrimonio;
  std::string Padrino;
  std::string Madrina;
  std::string Testigos;
  std::string Celebrante;
  std::string ExpedInst;
  std::string DomicilioMatrimonio;
  std::int32_t CodMunicipioDomicMatr = 0;
  std::string TelefonoDomicMatr;
  /// Five digits.
  std::string CPCompromiso;
  std::string NihilObstat;
  std::string Demarcacion;
  std::string TestigosParroquia;
  std::string Testigo1;
  std::string Testigo1_Natural_De;
  std::string Testigo1_Poblacion;
  std::string Testigo2;
  std::string Testigo2_Natural_De;
  std::string Testigo2_Poblacion;

  // The witnesses of the dossier.
  std::string NombreTestigo1;
  std::string PrimerApellidoTestigo1;
  std::string SegundoApellidoTestigo1;
  std::string DNITestigo1;
  std::string DomicilioTestigo1;
  std::int32_t CodMunicipioTestigo1 = 0;
  std::string NombreTestigo2;
  std::string PrimerApellidoTestigo2;
  std::string SegundoApellidoTestigo2;
  std::string DNITestigo2;
  std::string DomicilioTestigo2;
  std::int32_t CodMunicipioTestigo2 = 0;

  /// The table holds it.
  bool Estado = false;
  /// What is still to be done to it; value-initialised when nothing is.
  FDAPI::cCOperacion Operacion{};

  /// Of no use.
  std::string Encargado;

  /// The answers of the examinations of an entry that the list of its book adds, until it has a key
  /// under which they can be stored; see textoDeExamenes().
  std::string ExamenesEnEspera;
};

/// The working copy of a book's list. Whoever lists the book owns it; dialogs change it in place.
using ColeccionMatrimonio = std::vector<cMatrimonio>;

}  // namespace fidaleon
