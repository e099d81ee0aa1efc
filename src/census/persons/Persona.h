#pragma once

#include <cstdint>
#include <string>

namespace fidaleon {

/// A person of the parish with the one row of each satellite table; members are named as the
/// columns. Dates are "yyyymmdd" or empty, keys of towns and institutions 0 when there is none.
/// The personal notes are kept apart.
struct Persona {
  // Padron
  std::int32_t IDPadron = 0;
  std::string Nombre;
  std::string PrimerApellido;
  std::string SegundoApellido;
  std::string DNI;  // digits, "-", letter; or empty
  std::string Direccion;
  std::int32_t CodMunicipio = 0;
  std::string CPostal;
  std::string Telefono;
  std::string Telefono2;
  std::string CorreoElectronico;
  std::string EstadoCivil;
  std::string Sexo;  // "Hombre" or "Mujer"
  std::string ProfesionColegio;
  std::string PosicionFamiliar;
  std::string Comentarios;
  std::string Observaciones;
  std::int32_t CodInstitucionEmpadronado = 0;
  std::string Nif_Responsable;
  std::string Cumpleaños;  // "dd/mm"
  std::string AñoNacimiento;

  /// Key of the person in each satellite.
  std::int32_t CodPadron = 0;

  // Padron_Nacimiento
  std::string FechaNacimiento;
  std::int32_t CodMunicipioNac = 0;
  std::string NombrePadre;
  std::string NombreMadre;

  // Padron_Bautismo
  std::string FechaBautizo;
  std::int32_t CodMunicipioParrBaut = 0;
  std::string ParroquiaBaut;
  std::string DireccionParrBaut;

  // Padron_Comunion
  std::string AñoComunion;
  std::string ParroquiaCom;

  // Padron_Confirmacion
  std::string FechaConfirmacion;
  std::int32_t CodMunicipioParrConf = 0;
  std::string ParroquiaConf;
  std::string DireccionParrConf;

  // Padron_Matrimonio
  std::string FechaMatrimonio;
  std::int32_t CodMunicipioParrMatr = 0;
  std::string ParroquiaMatr;
  std::string DireccionParrMatr;

  // Padron_Defuncion: the price of the burial place as formatted text, in both currencies.
  std::string FechaDefuncion;
  std::string Nicho;
  std::string ImporteEur;  // "6,01"
  std::string Importe;     // pesetas, "1.000"
  bool Pagado = false;
};

}  // namespace fidaleon
