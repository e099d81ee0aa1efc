// Golden rows of death.

#include "GoldenRows.h"

namespace fidaleon::tests {

namespace {

/// What all its documents have but the residence and the place of death. The priest is the one of
/// the entry, not the institution's.
const Row PARTIDA = row(R"(
    Libro=Libro IV; Folio=3; Numero=7; FechaInhumacionCorta=01/03/2024
    FechaInhumacionLarga=uno de marzo de 2024; Parroquia=Santa Ana; PoblacionParr=Getafe
    ProvinciaParr=Madrid; DiocesisParr=Getafe; InstitucionParroco=José Vidal; Cementerio=San José
    Nombre=Antonio; PrimerApellido=García; SegundoApellido=Lara; EstadoCivil=casado
    Consorte=Rosa Mora; FechaDefuncionCorta=29/02/2024
    FechaDefuncionLarga=veintinueve de febrero de 2024; HoraDefuncion=04:15; Causa=Infarto
    PoblacionNaturalDe=Écija; ProvinciaNaturalDe=Sevilla; Edad=81; NumeroHijos=2
    NombresHijos=Luis y Eva; Sacramentos=Unción; Sacerdote=José Vidal; NombrePadre=Juan García
    NombreMadre=Inés Lara; FechaSistemaLarga=tres de noviembre de 2026)");

const Row RESIDENCIA =
    row("DomicilioActual=Calle Real, 7; PoblacionActual=Getafe; ProvinciaActual=Madrid");

const Row CERTIFICADO = PARTIDA + row(R"(
    DomicilioDefn=Hospital; PoblacionDefn=Toledo; ProvinciaDefn=Toledo; NotasMarginales=Cremado
    InstitucionEncargado=Pedro Ruiz; InstitucionNombre=San Ginés Mártir
    InstitucionTipo=Parroquia de; InstitucionPoblacion=Getafe; InstitucionProvincia=Madrid
    InstitucionDiocesis=Getafe; FechaSistemaCorta=03/11/2026)");
const Row CATALANA = row(R"(
    FechaInhumacionLarga=u de març de 2024; FechaDefuncionLarga=vint-i-nou de febrer de 2024
    FechaSistemaLarga=tres de novembre de 2026)");
const Row CON_PUNTOS{{"NotasMarginales", conPuntos("Cremado", 297)}};

const Sacramental EXEQUIAL{
    "Documentos_Defuncion", {"Defuncion_Datos"}, "Parroquia", "Defuncion", {}};

}  // namespace

std::vector<Golden> defunciones() {
  const Row libro = sin(PARTIDA, {"FechaSistemaLarga"}) + RESIDENCIA;
  return {
      {MIEMBRO(ImprimirCertificadoPartidaDefuncion), &EXEQUIAL, CERTIFICADO + CON_PUNTOS},
      {MIEMBRO(ImprimirCertificadoPartidaDefuncionMenorca), &EXEQUIAL, CERTIFICADO + CATALANA},
      {MIEMBRO(ImprimirCertificadoLiteralPartidaDefuncion), &EXEQUIAL, CERTIFICADO + RESIDENCIA},
      {MIEMBRO(ImprimirCertificadoLiteralPartidaDefuncionMenorca), &EXEQUIAL,
       CERTIFICADO + RESIDENCIA + CATALANA},
      {MIEMBRO(ImprimirPartidaDefuncion), &EXEQUIAL, PARTIDA + RESIDENCIA + CON_PUNTOS},
      {MIEMBRO(ImprimirPartidaDefuncionMenorca), &EXEQUIAL, PARTIDA + RESIDENCIA + CATALANA},
      {MIEMBRO(ImprimirLibroDefuncion), &EXEQUIAL, libro},
      {MIEMBRO(ImprimirLibroDefuncionMenorca), &EXEQUIAL,
       libro + sin(CATALANA, {"FechaSistemaLarga"})},
      {MIEMBRO(ImprimirIndiceLibroDefuncion), &EXEQUIAL,
       PARROQUIA + Row{{"Año", "2003"}, {"Letra", "G"}} +
           solo(PARTIDA,
                {"Libro", "Folio", "Numero", "PrimerApellido", "SegundoApellido", "Nombre"})},
  };
}

Row duplicadaDeDefuncion() {
  return solo(PARTIDA, {"Libro", "Folio", "Numero", "PrimerApellido", "SegundoApellido", "Nombre",
                        "FechaDefuncionCorta", "FechaInhumacionCorta", "Consorte", "NombresHijos",
                        "NombrePadre", "NombreMadre", "Sacramentos", "Sacerdote", "Parroquia",
                        "DiocesisParr", "FechaDefuncionLarga", "InstitucionParroco"}) +
         PARROQUIA_EN_GETAFE + row(R"(
    PoblacionDefn=Toledo; ProvinciaDefn=Toledo; Año=2024
    FechaSistemaLarga=veintidós de noviembre de 2026; FechaCreacionLibro=01/01/2003)");
}

}  // namespace fidaleon::tests
