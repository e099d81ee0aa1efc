// Golden rows of confirmation.

#include "GoldenRows.h"

namespace fidaleon::tests {

namespace {

const Row PARTIDA = row(R"(
    Nombre=Lucía; PrimerApellido=García; SegundoApellido=Pérez; Domicilio=Calle Real, 7
    ProvinciaDomicilio=Sevilla; PoblacionDomicilio=Écija; FechaNacCorta=01/04/2003
    FechaNacLarga=uno de abril de 2003; ProvinciaNac=Toledo; PoblacionNac=Toledo
    FeligresDe=San José; NombrePadre=Luis García Mora; NombreMadre=Ana Pérez Ruiz
    Parroquia=Santa Ana; ProvinciaParr=Madrid; PoblacionParr=Getafe; DiocesisParr=Getafe
    Libro=Libro IV; Folio=8; Numero=4b; FechaConfirmacionCorta=31/03/2019
    FechaConfirmacionLarga=treinta y uno de marzo de 2019; Padrino=Eva Ruiz; Ministro=Juan Soto
    CargoMinistro=Obispo; FechaBautCorta=24/05/2003; FechaBautLarga=veinticuatro de mayo de 2003
    ParroquiaBaut=San Ginés; DireccionBaut=Calle Mayor, 1; ProvinciaBaut=Toledo
    PoblacionBaut=Toledo; LibroBaut=2003/01; FolioBaut=12; NumeroBaut=23a
    InstitucionNombre=San Ginés Mártir; InstitucionTipo=Parroquia de; InstitucionDiocesis=Getafe
    InstitucionDomicilio=Calle Mayor, 1; InstitucionCP=28901; InstitucionPoblacion=Getafe
    InstitucionProvincia=Madrid; InstitucionParroco=Andrés Gil; InstitucionEncargado=Rosa Sanz
    NotasMarginales=Se casó en 2030)");

const Row FIRMADA = PARTIDA + FIRMA_DEL_TRES;
const Row CATALANA = row(R"(
    FechaNacLarga=u d'abril de 2003; FechaConfirmacionLarga=trenta-u de març de 2019
    FechaBautLarga=vint-i-quatre de maig de 2003)");
const Row FIRMADA_CATALANA =
    FIRMADA + CATALANA + Row{{"FechaSistemaLarga", "tres de novembre de 2026"}};
const Row HOY_CATALAN =
    HOY + CATALANA + Row{{"FechaSistemaLarga", "vint-i-dos de novembre de 2026"}};

const Row CATALANAS_AL_LADO{{"FechaConfiLargaMeno", "trenta-u de març de 2019"},
                            {"FechaBautLargaMeno", "vint-i-quatre de maig de 2003"}};

const Sacramental CONFIRMATORIO{
    "Documentos_Confirmacion",
    {"Confirmacion", "Confirmacion_Datos", "Confirmacion_Bautismo", "Libro_Confirmacion",
     "Institucion"},
    "Parroquia",
    "Confirmacion",
    // Another institution than the one that asked: the first of the store.
    {"UPDATE Confirmacion SET CodLibro = 0, Folio = 0, Numero = \"---\", InstitucionSolicitud = "
     "2"}};

}  // namespace

std::vector<Golden> confirmaciones() {
  const Row hoy = PARTIDA + HOY;
  return {
      // The age is the one at the confirmation, a day before a birthday.
      {MIEMBRO(ImprimirCertificadoPartidaConfirmacion), &CONFIRMATORIO,
       FIRMADA + Row{{"Edad", "15"}}},
      {MIEMBRO(ImprimirCertificadoPartidaConfirmacionMenorca), &CONFIRMATORIO,
       FIRMADA_CATALANA + Row{{"Edad", "15"}}},
      {MIEMBRO(ImprimirCertificadoLiteralPartidaConfirmacion), &CONFIRMATORIO, FIRMADA},
      {MIEMBRO(ImprimirCertificadoLiteralPartidaConfirmacionMenorca), &CONFIRMATORIO,
       FIRMADA_CATALANA},
      {MIEMBRO(ImprimirPartidaConfirmacion), &CONFIRMATORIO,
       hoy + Row{{"NotasMarginales", conPuntos("Se casó en 2030", 293)}}},
      {MIEMBRO(ImprimirPartidaConfirmacionMenorca), &CONFIRMATORIO, PARTIDA + HOY_CATALAN},
      // The age is today's, and nobody signs as keeper.
      {MIEMBRO(ImprimirNotificacionConfirmacion), &CONFIRMATORIO,
       sin(hoy, {"InstitucionEncargado"}) + Row{{"Edad", "23"}}},
      {MIEMBRO(ImprimirNotificacionConfirmacionMenorca), &CONFIRMATORIO,
       sin(PARTIDA + HOY_CATALAN, {"InstitucionEncargado"}) + Row{{"Edad", "23"}}},
      {MIEMBRO(ImprimirSolicitudConfirmacion), &CONFIRMATORIO, hoy + row(R"(
    Folio=0; Numero=---; FechaBautLarga=veinticuatro de mayo de dos mil tres
    FechaBautLargaMeno=vint-i-quatre de maig de 2003)"),
       true},
      {MIEMBRO(ImprimirLibroConfirmacion), &CONFIRMATORIO, hoy + CATALANAS_AL_LADO},
      {MIEMBRO(ImprimirLibroConfirmacionMenorca), &CONFIRMATORIO,
       PARTIDA + HOY_CATALAN + CATALANAS_AL_LADO},
      {MIEMBRO(ImprimirIndiceLibroConfirmacion), &CONFIRMATORIO,
       PARROQUIA + Row{{"Año", "2003"}, {"Letra", "G"}} +
           solo(PARTIDA,
                {"Libro", "Folio", "Numero", "PrimerApellido", "SegundoApellido", "Nombre"})},
  };
}

Row duplicadaDeConfirmacion() {
  return PARTIDA + HOY + row("Edad=15; Año=2019; FechaCreacionLibro=01/01/2003");
}

}  // namespace fidaleon::tests
