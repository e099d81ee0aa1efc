// Golden rows of baptism.

#include "GoldenRows.h"
#include "PartidaImpresa.h"

namespace fidaleon::tests {

namespace {

const Row INSTITUCION = row(R"(
    InstitucionNombre=San Ginés Mártir; InstitucionTipo=Parroquia de; InstitucionDiocesis=Getafe
    InstitucionPoblacion=Getafe; InstitucionProvincia=Madrid; NotasMarginales=Confirmada en 2018)");

const Row FIRMADA = INSTITUCION + FIRMA_DEL_TRES;

const Row SOLICITUD = sin(PARTIDA, {"Libro"}) + INSTITUCION +
                      row("Folio=0; Numero=---; InstitucionTipo=PARROQUIA DE");

const Row VOLANTE = row(R"(
    Libro=2003/01; Folio=12; Numero=23a; PrimerApellidoHijo=García; SegundoApellidoHijo=Pérez
    NombreHijo=Lucía; FechaNacCorta=01/04/2003; FechaNacLarga=uno de abril de 2003
    FechaBautismoCorta=24/05/2003; FechaBautismoLarga=veinticuatro de mayo de 2003
    NombrePadre=Luis; PrimerApellidoPadre=García; SegundoApellidoPadre=Mora; NombreMadre=Ana
    PrimerApellidoMadre=Pérez; SegundoApellidoMadre=Ruiz; InstitucionDomicilio=Calle Mayor, 1
    InstitucionCP=28901; FechaSisteLargMeno=vint-i-dos de novembre de 2026
    FechaBauLargaMeno=vint-i-quatre de maig de 2003; FechaNacLargaMeno=u d'abril de 2003)") +
                    INSTITUCION + HOY + genero("a la niña", "hija");

const Sacramental BAUTISMAL{
    "Documentos_Bautismo",
    {"Bautismo_Hijo", "Bautismo_Padres", "Bautismo_Madres", "Bautismo_Matrimonio", "Bautismo"},
    "ParroquiaBaut",
    "Bautismo",
    {"UPDATE Bautismo SET CodLibro = 0, Folio = 0, Numero = \"---\", InstitucionSolicitud = 1"}};

}  // namespace

std::vector<Golden> bautismos() {
  const Row nina = genero("a la niña", "nacida");
  return {
      {MIEMBRO(ImprimirCertificadoPartidaBautismo), &BAUTISMAL,
       PARTIDA + FIRMADA + Row{{"Sexo", "Dª."}}},
      // Keeps the Spanish dates and adds the Catalan ones.
      {MIEMBRO(ImprimirCertificadoPartidaBautismoMenorca), &BAUTISMAL, PARTIDA + FIRMADA + row(R"(
    Sexo=Dª.; FechaNacLargaMeno=u d'abril de 2003; FechaSisteLargMeno=tres de novembre de 2026
    FechaBauLargaMeno=vint-i-quatre de maig de 2003)")},
      {MIEMBRO(ImprimirCertificadoLiteralPartidaBautismo), &BAUTISMAL, PARTIDA + FIRMADA + nina},
      {MIEMBRO(ImprimirCertificadoLiteralPartidaBautismoMenorca), &BAUTISMAL,
       PARTIDA + sin(FIRMADA, {"FechaSistemaLarga"}) + nina + row(R"(
    FechaSisteLargMeno=tres de novembre de 2026; FechaNacLargaMeno=u d'abril de 2003
    DiocesisMatrimonio=Toledo; ProfesionPadrino=Fuster; NaturalPadrino=Maó; EstatPadrino=Casat
    ProfesionMadrina=---; NaturalMadrina=---; EstatMadrina=---; MadreProfesion=---
    PadreProfesion=Maestro)")},
      {MIEMBRO(ImprimirPartidaBautismo), &BAUTISMAL,
       PARTIDA + nina + Row{{"NotasMarginales", conPuntos("Confirmada en 2018", 291)}}},
      {MIEMBRO(ImprimirPartidaBautismoMenorca), &BAUTISMAL,
       PARTIDA + FECHAS_CATALANAS + genero("la filleta", "nada") +
           Row{{"NotasMarginales", "Confirmada en 2018"}}},
      {MIEMBRO(ImprimirVolanteBautismo), &BAUTISMAL, VOLANTE},
      {MIEMBRO(ImprimirSolicitudPartidaBautismoDatos), &BAUTISMAL,
       SOLICITUD + HOY + genero("La niña", "nacida"), true},
      {MIEMBRO(ImprimirSolicitudPartidaBautismoDatosMenorca), &BAUTISMAL,
       SOLICITUD + HOY + FECHAS_CATALANAS + genero("La filla", "nada") +
           Row{{"FechaSistemaLarga", "vint-i-dos de novembre de 2026"}},
       true},
      {MIEMBRO(ImprimirSolicitudPartidaBautismoDatosSantiago), &BAUTISMAL,
       sin(SOLICITUD, {"InstitucionTipo"}) + HOY + genero("La niña", "nacida") + (row(R"(
    InstitucionNombre=San Ginés; EdadPadrino=30; ParroquiaDomicilioPadrino=San José
    EdadMadrina=---; ParroquiaDomicilioMadrina=---; PadreParroquiaBaut=Santa Cruz
    PadreProfesion=Maestro; PadreProvinciaParrBaut=Sevilla; MadreParroquiaBaut=San Pedro
    MadreProfesion=; MadreProvinciaParrBaut=Toledo; AbueloPatParroquiaBaut=Santa Ana
    AbueloPatProvinciaParrBaut=Toledo; AbuelaPatParroquiaBaut=; AbuelaPatProvinciaParrBaut=---
    AbueloMatParroquiaBaut=San Juan; AbueloMatProvinciaParrBaut=Madrid
    AbuelaMatParroquiaBaut=San Blas; AbuelaMatProvinciaParrBaut=Sevilla; TelefonoPadres=916950000)")),
       true},
      {MIEMBRO(ImprimirLibroBautismo), &BAUTISMAL, PARTIDA + nina},
      {MIEMBRO(ImprimirLibroBautismoMenorca), &BAUTISMAL,
       PARTIDA + FECHAS_CATALANAS + genero("la filleta", "nada")},
      {MIEMBRO(ImprimirIndiceLibroBautismo), &BAUTISMAL,
       PARROQUIA + Row{{"Año", "2003"}, {"Letra", "G"}} +
           solo(PARTIDA, {"Libro", "Folio", "Numero", "PrimerApellidoHijo", "SegundoApellidoHijo",
                          "NombreHijo"})},
  };
}

Row duplicadaDeBautismo() {
  return sin(PARTIDA, {"ProvinciaAbueloPaterno", "ProvinciaAbuelaPaterna", "ProvinciaAbueloMaterno",
                       "ProvinciaAbuelaMaterna"}) +
         PARROQUIA_EN_GETAFE + row(R"(
    InstitucionParroco=Andrés Gil; Año=2003; FechaSistemaLarga=veintidós de noviembre de 2026
    FechaCreacionLibro=01/01/2003)");
}

}  // namespace fidaleon::tests
