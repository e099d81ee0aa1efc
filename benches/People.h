#pragma once
// A big invented census in the shape that the program stores it, for the measurements.

#include <array>
#include <string>

#include "store/Connection.h"

namespace fidaleon::bench {

inline constexpr int PERSONS = 100000;
inline constexpr int EVERY_COLLABORATOR = 20;  // 5,000 of them

inline std::string surname(int n) {
  static constexpr std::array<const char*, 12> FIRST = {
      "García", "Fernández", "Ñáñez", "López", "Martínez", "Sánchez",
      "Pérez",  "Gómez",     "Ruiz",  "Díaz",  "Muñoz",    "Álvarez"};
  static constexpr std::array<const char*, 25> SECOND = {
      "",        " Prieto",  " Romero", " Gil",   " del Pozo", " Otero",  " Rey",
      " Marco",  " Lázaro",  " Pons",   " Camps", " Moll",     " Bosch",  " Triay",
      " Florit", " Nadal",   " Ortega", " Calvo", " Durán",    " Crespo", " Pastor",
      " Nieto",  " Arribas", " Yagüe",  " Zamora"};
  return std::string(FIRST[static_cast<std::size_t>(n) % FIRST.size()]) +
         SECOND[static_cast<std::size_t>(n / 12) % SECOND.size()];
}

inline std::string givenName(int n) {
  static constexpr std::array<const char*, 16> NAMES = {
      "José",  "María", "Íñigo", "Ana",    "Luis",  "Carmen", "Juan",    "Pilar",
      "Pedro", "Lucía", "Diego", "Begoña", "Óscar", "Elena",  "Rodrigo", "Julia"};
  return NAMES[static_cast<std::size_t>(n) % NAMES.size()];
}

inline void insertPerson(store::Connection& connection, int n) {
  const std::string id = std::to_string(n);
  connection.Execute(
      "INSERT INTO Padron (Nombre,PrimerApellido,SegundoApellido,DNI,Direccion,CodMunicipio,"
      "CPostal,Telefono,Telefono2,CorreoElectronico,EstadoCivil,Sexo,[Profesion/Colegio],"
      "PosicionFamiliar,Comentarios,Observaciones,CodInstitucionEmpadronado,Nif_Responsable,"
      "Cumpleaños,AñoNacimiento) VALUES (\"" +
      givenName(n / 7) + "\",\"" + surname(n) + "\",\"" + surname(n / 17 + 5) + "\",\"" +
      std::string(8 - id.size(), '0') + id + "-X\",\"Calle Mayor, " + id + "\",1,\"28001\",\"91" +
      id + "\",\"\",\"vecino" + id +
      "@example.org\",\"Casado\",\"Hombre\",\"Maestro\",\"Padre\",\"\",\"\",1,\"\",\"\",\"\")");
  connection.Execute(
      "INSERT INTO Padron_Nacimiento (CodPadron,FechaNacimiento,CodMunicipioNac,"
      "NombrePadre,NombreMadre) VALUES (" +
      id + ",\"19700101\",1,\"Luis\",\"Ana\")");
  connection.Execute(
      "INSERT INTO Padron_Bautismo (CodPadron,FechaBautizo,CodMunicipioParrBaut,"
      "ParroquiaBaut,DireccionParrBaut) VALUES (" +
      id + ",\"\",0,\"\",\"\")");
  connection.Execute("INSERT INTO Padron_TipoPersona (CodPadron,CodTipoPersona) VALUES (" + id +
                     ",2)");
  if (n % EVERY_COLLABORATOR == 0)
    connection.Execute("INSERT INTO Padron_TipoPersona (CodPadron,CodTipoPersona) VALUES (" + id +
                       ",3)");
}

inline void fillCensus(store::Connection& connection, int persons) {
  connection.Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
  connection.BeginTrans();
  for (int n = 1; n <= persons; ++n) insertPerson(connection, n);
  connection.CommitTrans();
}

}  // namespace fidaleon::bench
