// Golden rows of marriage.

#include "GoldenRows.h"

namespace fidaleon::tests {

namespace {

/// The entry as the base loader writes it, on 22 November 2026.
const Row PARTIDA = HOY + Row{{"NotasMarginales", conPuntos("Nulo en 2025", 294)}} + row(R"(
    Parroquia=Santa Ana; ProvinciaParroquia=Madrid; PoblacionParroquia=Getafe; Diocesis=Getafe
    Libro=Libro IV; Folio=5; Numero=6a; FechaMatrimonioCorta=26/09/2020
    FechaMatrimonioLarga=veintiséis de septiembre de 2020; HoraMatrimonio=12:30; Padrino=Juan Gil
    Madrina=Rosa Ruiz; Testigos=Blas Soto y Eva Lara; Celebrante=José Vidal; NihilObstat=3/2020
    ExpedInst=En Getafe; DomicilioMatrimonio=Calle Real, 7; ProvinciaDomicMatr=Toledo
    PoblacionDomicMatr=Toledo; TelefonoDomicMatr=916; Demarcacion=San Juan; Letra=G; Año=2003
    FechaCreacionLibro=01/01/2003; CPCompromiso=28901; Observaciones=Con dispensa
    DiocesisResidenciaNovio=---; PoblacionResidenciaNovio=---; ParroquiaResidenciaNovio=---
    DiocesisResidenciaNovia=---; PoblacionResidenciaNovia=---; ParroquiaResidenciaNovia=---)");
const Row TRES_DE_NOVIEMBRE = row(R"(
    FechaSistemaCorta=03/11/2026; FechaSistemaLarga=tres de noviembre de 2026)");
const Row CATALANA = row(R"(
    FechaMatrimonioLarga=vint-i-sis de setembre de 2020
    FechaSistemaLarga=vint-i-dos de novembre de 2026; NotasMarginales=Nulo en 2025)");
const Row TRES_DE_NOVEMBRE = row(R"(
    FechaSistemaCorta=03/11/2026; FechaSistemaLarga=tres de novembre de 2026)");
/// Outside any book.
const Row DE_SOLICITUD = row("Libro=---; Folio=0; Numero=---; Año=; FechaCreacionLibro=---");
/// Parish, town and diocese as the boxes have them, each in the column of another.
const Row EXHORTO = row(R"(
    DiocesisResidenciaNovio=San José; PoblacionResidenciaNovio=Pinto
    ParroquiaResidenciaNovio=Getafe; DiocesisResidenciaNovia=San Blas
    PoblacionResidenciaNovia=Osuna; ParroquiaResidenciaNovia=Sevilla)");

// Where a person is registered may be the name of a town, or its key.
const Row NOVIO = row(R"(
    NombreNovio=Luis; PrimerApellidoNovio=Gil; SegundoApellidoNovio=Mora; DNINovio=1A
    EdadNovio=30; ReligionNovio=Católica; FechaNacNovioCorta=02/01/1990
    FechaNacNovioLarga=dos de enero de 1990; ProvinciaNacNovio=Toledo; PoblacionNacNovio=Toledo
    NacionalidadNovio=Española; FechaConfirmacionNovioCorta=06/05/2005
    FechaConfirmacionNovioLarga=seis de mayo de 2005; ProvinciaConfirmacionNovio=Sevilla
    PoblacionConfirmacionNovio=Écija; DomicilioActualNovio=Calle Ancha, 1
    ProvinciaActualNovio=Madrid; PoblacionActualNovio=Getafe; TResidenciaDomActNovio=4
    DomicilioAnteriorNovio=---; ProvinciaAnteriorNovio=---; PoblacionAnteriorNovio=---
    FechaBautNovioCorta=01/02/1990; FechaBautNovioLarga=uno de febrero de 1990
    ParroquiaBautNovio=Santa Ana; DiocesisBautNovio=Toledo; ProvinciaBautNovio=Toledo
    PoblacionBautNovio=Toledo; LibroBautNovio=IV; FolioBautNovio=12; NumeroBautNovio=3
    EstadoCivilNovio=soltero; NombrePadreNovio=Juan Gil; NombreMadreNovio=Inés Mora
    ProvinciaInscritoNovio=---; PoblacionInscritoNovio=Toledo; TomoNovio=5; PaginaNovio=66
    NombreCivilNovio=Luis G.; EmailNovio=luis@casa; TelefonoNovio=600
    ParroquiaResidenciaNovio=San José; PoblacionResidenciaNovio=Pinto
    DiocesisResidenciaNovio=Getafe; NovioDiocesisNac=Toledo; NovioNacionalidad=Española
    NovioProfesion=Maestro)");
const Row NOVIA = row(R"(
    NombreNovia=Ana; PrimerApellidoNovia=Sanz; SegundoApellidoNovia=Ruiz; DNINovia=2B
    EdadNovia=29; ReligionNovia=Ortodoxa; FechaNacNoviaCorta=04/03/1991
    FechaNacNoviaLarga=cuatro de marzo de 1991; ProvinciaNacNovia=Sevilla
    PoblacionNacNovia=Écija; NacionalidadNovia=Rumana; FechaConfirmacionNoviaCorta=---
    FechaConfirmacionNoviaLarga=---; ProvinciaConfirmacionNovia=---
    PoblacionConfirmacionNovia=---; DomicilioActualNovia=Calle Nueva, 2
    ProvinciaActualNovia=Sevilla; PoblacionActualNovia=Écija; TResidenciaDomActNovia=0
    DomicilioAnteriorNovia=Calle Vieja; ProvinciaAnteriorNovia=Toledo
    PoblacionAnteriorNovia=Toledo; FechaBautNoviaCorta=05/04/1991
    FechaBautNoviaLarga=cinco de abril de 1991; ParroquiaBautNovia=Santa Cruz
    DiocesisBautNovia=Sevilla; ProvinciaBautNovia=Sevilla; PoblacionBautNovia=Écija
    LibroBautNovia=VII; FolioBautNovia=8; NumeroBautNovia=9b; EstadoCivilNovia=viuda
    NombrePadreNovia=Pedro Sanz; NombreMadreNovia=Rosa Ruiz; ProvinciaInscritoNovia=Sevilla
    PoblacionInscritoNovia=Écija; TomoNovia=7; PaginaNovia=88; NombreCivilNovia=Ana S.
    EmailNovia=ana@casa; TelefonoNovia=700; ParroquiaResidenciaNovia=San Blas
    PoblacionResidenciaNovia=Osuna; DiocesisResidenciaNovia=Sevilla; NoviaDiocesisNac=Sevilla
    NoviaNacionalidad=Rumana; NoviaProfesion=Médica)");
const Row NOVIO_CATALAN = row(R"(
    FechaNacNovioLarga=dos de gener de 1990; FechaConfirmacionNovioLarga=sis de maig de 2005
    FechaBautNovioLarga=u de febrer de 1990)");
const Row NOVIA_CATALANA = row(R"(
    FechaNacNoviaLarga=quatre de març de 1991; FechaBautNoviaLarga=cinc d'abril de 1991)");

const Row OTROS = row(R"(
    NombreTestigo1=Blas; PrimerApellidoTestigo1=Soto; SegundoApellidoTestigo1=---; DNITestigo1=3C
    DomicilioTestigo1=Calle Uno; ProvinciaTestigo1=Madrid; PoblacionTestigo1=Getafe
    NombreTestigo2=Inés; PrimerApellidoTestigo2=Lara; SegundoApellidoTestigo2=Pol; DNITestigo2=4D
    DomicilioTestigo2=---; ProvinciaTestigo2=---; PoblacionTestigo2=---
    InstitucionNombre=San Ginés Mártir; InstitucionTipo=Parroquia de; InstitucionDiocesis=Getafe
    InstitucionDomicilio=Calle Mayor, 1; InstitucionCP=28901; InstitucionPoblacion=Getafe
    InstitucionProvincia=Madrid; InstitucionParroco=Andrés Gil; InstitucionEncargado=---
    InstitucionVicaria=Vicaría I; InstitucionEmail=---; InstitucionTelefono=910000000)");

Row curso() {
  Row fila{{"Cod_Tipo_Persona", "1"}};
  for (int i = 0; i < 34; ++i) fila[std::to_string(i)] = i == 2 ? "No, d'antes" : "";
  return fila;
}

const Sacramental NUPCIAL{
    "Documentos_Matrimonio",
    {"Matrimonio_Novios", "Matrimonio_Novios_RegCivil", "Matrimonio_Novios_Bautismo",
     "Matrimonio_Novias", "Matrimonio_Novias_RegCivil", "Matrimonio_Novias_Bautismo",
     "Matrimonio_Compromiso", "Matrimonio_Expediente", "Libro_Matrimonio"},
    "Parroquia",
    "Matrimonio",
    {"UPDATE Matrimonio SET CodLibro=0, Folio=0, Numero=\"---\", InstitucionSolicitud=1"},
    true};

using Miembro = decltype(Golden::imprimir);

Golden base(const char* nombre, Miembro miembro, const Row& fila, bool solicitud = false,
            const Row& otros = OTROS) {
  return {nombre,
          miembro,
          &NUPCIAL,
          fila,
          solicitud,
          {{"Documentos_Matrimonio_Novios", NOVIO},
           {"Documentos_Matrimonio_Novias", NOVIA},
           {"Documentos_Matrimonio_Otros", otros},
           {"Documentos_Matrimonio_Cursos", curso()}}};
}

Golden menorca(const char* nombre, Miembro miembro, const Row& fila, bool solicitud = false,
               const Row& otros = OTROS) {
  Golden suya = base(nombre, miembro, fila, solicitud, otros);
  suya.companeras["Documentos_Matrimonio_Novios"] =
      sin(NOVIO + NOVIO_CATALAN, {"NovioDiocesisNac", "NovioNacionalidad", "NovioProfesion"});
  suya.companeras["Documentos_Matrimonio_Novias"] =
      sin(NOVIA + NOVIA_CATALANA, {"NoviaDiocesisNac", "NoviaNacionalidad", "NoviaProfesion"});
  return suya;
}

Golden santiago(const char* nombre, Miembro miembro, const Row& fecha) {
  Golden suya = base(nombre, miembro,
                     sin(PARTIDA + fecha, {"CPCompromiso", "Observaciones"}) +
                         Row{{"Testigos", "---"},
                             {"TestigosParroquia", "De ambas"},
                             {"NombreJuzgado", ""},
                             {"NotasMarginales", "Nulo en 2025"}});
  suya.companeras = {
      {"Documentos_Matrimonio_Novios",
       sin(NOVIO, {"EmailNovio", "TelefonoNovio", "ParroquiaResidenciaNovio",
                   "PoblacionResidenciaNovio", "DiocesisResidenciaNovio"}) +
           Row{{"NovioSujetoDerecho", "Derecho común"}}},
      {"Documentos_Matrimonio_Novias",
       sin(NOVIA, {"EmailNovia", "TelefonoNovia", "ParroquiaResidenciaNovia",
                   "PoblacionResidenciaNovia", "DiocesisResidenciaNovia"}) +
           Row{{"NoviaSujetoDerecho", "Navarra"}}},
      {"Documentos_Matrimonio_Otros",
       sin(OTROS, {"InstitucionTipo", "InstitucionEmail", "InstitucionTelefono"}) +
           Row{{"InstitucionArciprestazgo", "---"}, {"InstitucionAyuntamiento", "---"}}}};
  return suya;
}

Golden dosVeces(Golden golden) {
  golden.filas = 2;
  return golden;
}

}  // namespace

std::vector<Golden> matrimonios() {
  const Row firmados = OTROS + Row{{"InstitucionEncargado", FIRMA}};
  const Row fechada = PARTIDA + TRES_DE_NOVIEMBRE;
  const Row catalana = PARTIDA + CATALANA;
  const Row solicitud = PARTIDA + DE_SOLICITUD;
  const Row exhorto = solicitud + EXHORTO + TRES_DE_NOVIEMBRE;
  return {
      base(MIEMBRO(ImprimirCertificadoLiteralPartidaMatrimonio), fechada, false, firmados),
      menorca(MIEMBRO(ImprimirCertificadoLiteralPartidaMatrimonioMenorca),
              catalana + TRES_DE_NOVEMBRE, false, firmados),
      base(MIEMBRO(ImprimirCertificadoPartidaMatrimonio), fechada, false, firmados),
      menorca(MIEMBRO(ImprimirCertificadoPartidaMatrimonioMenorca), catalana + TRES_DE_NOVEMBRE,
              false, firmados),
      base(MIEMBRO(ImprimirPartidaMatrimonio), PARTIDA),
      menorca(MIEMBRO(ImprimirPartidaMatrimonioMenorca), catalana),
      base(MIEMBRO(ImprimirVolanteMatrimonio), fechada),
      menorca(MIEMBRO(ImprimirVolanteMatrimonioMenorca), catalana + TRES_DE_NOVEMBRE),
      base(MIEMBRO(ImprimirComunicacionMatrimonio), fechada),
      menorca(MIEMBRO(ImprimirComunicacionMatrimonioMenorca), catalana + TRES_DE_NOVEMBRE),
      santiago(MIEMBRO(ImprimirComunicacionMatrimonioSantiago), TRES_DE_NOVIEMBRE),
      base(MIEMBRO(ImprimirNotificacionMatrimonio), fechada),
      menorca(MIEMBRO(ImprimirNotificacionMatrimonioMenorca), catalana + TRES_DE_NOVEMBRE),
      santiago(MIEMBRO(ImprimirEstadoExpMatr), {}),
      menorca(MIEMBRO(ImprimirEstadoExpMatrMenorca), catalana),
      base(MIEMBRO(InformeExhortoMatrimonio), exhorto, true),
      menorca(MIEMBRO(InformeExhortoMatrimonioMenorca), exhorto + CATALANA + TRES_DE_NOVEMBRE,
              true),
      menorca(MIEMBRO(InformeAtestadoFueraDiocesis), catalana + DE_SOLICITUD, true),
      dosVeces(base(MIEMBRO(ImprimirExpedienteFormato1), solicitud, true)),
      dosVeces(base(MIEMBRO(ImprimirExpedienteFormato2), solicitud, true)),
      dosVeces(
          menorca(MIEMBRO(ImprimirExpedienteMatrimonialMenorca), catalana + DE_SOLICITUD, true)),
      base(MIEMBRO(ImprimirExpedienteFormatoMadrid), solicitud, true),
      base(MIEMBRO(ImprimirExpedienteFormato3), solicitud, true),
      base(MIEMBRO(ImprimirResumenMatrimonio), solicitud, true),
      base(MIEMBRO(ImprimirResumenMatrimonio2), solicitud, true),
      base(MIEMBRO(ImprimirLibroMatrimonio), PARTIDA),
      menorca(MIEMBRO(ImprimirLibroMatrimonioMenorca), catalana),
      base(MIEMBRO(ImprimirIndiceLibroMatrimonio), PARTIDA),
  };
}

Row duplicadaDeMatrimonio() {
  return PARTIDA + Row{{"Año", "2020"}};
}

}  // namespace fidaleon::tests
