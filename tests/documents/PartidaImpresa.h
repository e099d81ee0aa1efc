#pragma once
// What documents print of the baptism in BautismoWorld.

#include "BautismoWorld.h"

namespace fidaleon::tests {

/// The entry as the plain documents print it, without the words of gender.
inline const Row PARTIDA = row(R"(
    Libro=2003/01; Folio=12; Numero=23a; PrimerApellidoHijo=García; SegundoApellidoHijo=Pérez
    NombreHijo=Lucía; FechaBautismoCorta=24/05/2003; ParroquiaBaut=San Ginés; PoblacionBaut=Getafe
    ProvinciaBaut=Madrid; Diocesis=Getafe; FechaBautismoLarga=veinticuatro de mayo de 2003
    Ministro=José Vidal; FechaNacCorta=01/04/2003; FechaNacLarga=uno de abril de 2003
    HoraNac=09:30; DireccionNac=Calle Real, 7; PoblacionNac=Toledo; ProvinciaNac=Toledo
    NombrePadre=Luis; PrimerApellidoPadre=García; SegundoApellidoPadre=Mora; PoblacionPadre=Getafe
    ProvinciaPadre=Madrid; NombreMadre=Ana; PrimerApellidoMadre=Pérez; SegundoApellidoMadre=Ruiz
    PoblacionMadre=Toledo; ProvinciaMadre=Toledo; DireccionPadres=Calle Real, 7
    PoblacionPadres=Getafe; ProvinciaPadres=Madrid; ParroquiaMatr=Santa María
    PoblacionMatr=Toledo; ProvinciaMatr=Toledo; FechaMatrCorta=---; FechaMatrLarga=---
    AbueloPaterno=Antonio García; PoblacionAbueloPaterno=Écija; AbuelaPaterna=Rosa Mora
    PoblacionAbuelaPaterna=---; AbueloMaterno=Juan Pérez; PoblacionAbueloMaterno=Getafe
    AbuelaMaterna=Elena Ruiz; PoblacionAbuelaMaterna=Toledo; Padrino=Pablo Mora; Madrina=Inés Ruiz
    ProvinciaAbueloPaterno=Sevilla; ProvinciaAbuelaPaterna=---; ProvinciaAbueloMaterno=Madrid
    ProvinciaAbuelaMaterna=Toledo)");

inline const Row FECHAS_CATALANAS = row(R"(
    FechaBautismoLarga=vint-i-quatre de maig de 2003; FechaNacLarga=u d'abril de 2003
    FechaMatrLarga=---)");

inline Row genero(const char* hijo, const char* nacido) {
  return {{"Al niño/A la niña", hijo}, {"Nacido/Nacida", nacido}};
}

}  // namespace fidaleon::tests
