// Every column of every baptism document; a column that is not named here must hold Null.

#include "PartidaImpresa.h"

namespace fidaleon::tests {
namespace {

constexpr const char* FIRMA = "Pedro Ruiz";
constexpr const char* FECHA = "20261103";

const Row INSTITUCION{
    {"InstitucionNombre", "San Ginés Mártir"}, {"InstitucionTipo", "Parroquia de"},
    {"InstitucionDiocesis", "Getafe"},         {"InstitucionPoblacion", "Getafe"},
    {"InstitucionProvincia", "Madrid"},        {"NotasMarginales", "Confirmada en 2018"},
};

const Row FIRMADA = INSTITUCION + Row{{"InstitucionEncargado", FIRMA},
                                      {"FechaSistemaCorta", "03/11/2026"},
                                      {"FechaSistemaLarga", "tres de noviembre de 2026"}};

const Row HOY{{"FechaSistemaCorta", "22/11/2026"},
              {"FechaSistemaLarga", "veintidós de noviembre de 2026"}};

TEST(BaptismRows, Certificate_FillsItsColumnsAndNoOther) {
  BautismoWorld w;
  w.informes.ImprimirCertificadoPartidaBautismo(w.con(), w.conInformes(), 1, FIRMA, FECHA);
  EXPECT_EQ(w.fila(), PARTIDA + FIRMADA + (Row{{"Sexo", "Dª."}}));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BaptismRows, CertificateMenorca_KeepsSpanishDatesAndAddsCatalanOnes) {
  BautismoWorld w;
  w.informes.ImprimirCertificadoPartidaBautismoMenorca(w.con(), w.conInformes(), 1, FIRMA, FECHA);
  EXPECT_EQ(w.fila(), PARTIDA + FIRMADA +
                          (Row{{"Sexo", "Dª."},
                               {"FechaNacLargaMeno", "u d'abril de 2003"},
                               {"FechaSisteLargMeno", "tres de novembre de 2026"},
                               {"FechaBauLargaMeno", "vint-i-quatre de maig de 2003"}}));
}

TEST(BaptismRows, LiteralCertificate_FillsItsColumnsAndNoOther) {
  BautismoWorld w;
  w.informes.ImprimirCertificadoLiteralPartidaBautismo(w.con(), w.conInformes(), 1, FIRMA, FECHA);
  EXPECT_EQ(w.fila(), PARTIDA + FIRMADA + genero("a la niña", "nacida"));
}

TEST(BaptismRows, LiteralCertificateMenorca_HasTheDateOfIssueInCatalanOnly) {
  BautismoWorld w;
  w.informes.ImprimirCertificadoLiteralPartidaBautismoMenorca(w.con(), w.conInformes(), 1, FIRMA,
                                                              FECHA);
  EXPECT_EQ(w.fila(), PARTIDA + sin(FIRMADA, {"FechaSistemaLarga"}) +
                          genero("a la niña", "nacida") +
                          (Row{{"FechaSisteLargMeno", "tres de novembre de 2026"},
                               {"FechaNacLargaMeno", "u d'abril de 2003"},
                               {"DiocesisMatrimonio", "Toledo"},
                               {"ProfesionPadrino", "Fuster"},
                               {"NaturalPadrino", "Maó"},
                               {"EstatPadrino", "Casat"},
                               {"ProfesionMadrina", "---"},
                               {"NaturalMadrina", "---"},
                               {"EstatMadrina", "---"},
                               {"MadreProfesion", "---"},
                               {"PadreProfesion", "Maestro"}}));
}

std::string conPuntos(std::string nota, int veces) {
  for (int i = 0; i < veces; ++i) nota += " .";
  return nota;
}

TEST(BaptismRows, Entry_HasItsNotesPadded) {
  BautismoWorld w;
  w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.fila(), PARTIDA + genero("a la niña", "nacida") +
                          (Row{{"NotasMarginales", conPuntos("Confirmada en 2018", 291)}}));
}

TEST(BaptismRows, EntryMenorca_IsInCatalanAndNotPadded) {
  BautismoWorld w;
  w.informes.ImprimirPartidaBautismoMenorca(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.fila(), PARTIDA + FECHAS_CATALANAS + genero("la filleta", "nada") +
                          (Row{{"NotasMarginales", "Confirmada en 2018"}}));
}

TEST(BaptismRows, Volante_HasTheColumnsOfBothEditions) {
  BautismoWorld w;
  w.informes.ImprimirVolanteBautismo(w.con(), w.conInformes(), 1);
  const Row expected = Row{{"Libro", "2003/01"},
                           {"Folio", "12"},
                           {"Numero", "23a"},
                           {"PrimerApellidoHijo", "García"},
                           {"SegundoApellidoHijo", "Pérez"},
                           {"NombreHijo", "Lucía"},
                           {"FechaNacCorta", "01/04/2003"},
                           {"FechaNacLarga", "uno de abril de 2003"},
                           {"FechaBautismoCorta", "24/05/2003"},
                           {"FechaBautismoLarga", "veinticuatro de mayo de 2003"},
                           {"NombrePadre", "Luis"},
                           {"PrimerApellidoPadre", "García"},
                           {"SegundoApellidoPadre", "Mora"},
                           {"NombreMadre", "Ana"},
                           {"PrimerApellidoMadre", "Pérez"},
                           {"SegundoApellidoMadre", "Ruiz"},
                           {"InstitucionDomicilio", "Calle Mayor, 1"},
                           {"InstitucionCP", "28901"},
                           {"FechaSisteLargMeno", "vint-i-dos de novembre de 2026"},
                           {"FechaBauLargaMeno", "vint-i-quatre de maig de 2003"},
                           {"FechaNacLargaMeno", "u d'abril de 2003"}} +
                       INSTITUCION + HOY + genero("a la niña", "hija");
  EXPECT_EQ(w.fila(), expected);
}

const Row SOLICITUD = sin(PARTIDA, {"Libro"}) + INSTITUCION +
                      Row{{"Folio", "0"}, {"Numero", "---"}, {"InstitucionTipo", "PARROQUIA DE"}};

TEST(BaptismRows, RequestData_TakesTheInstitutionThatAsked) {
  BautismoWorld w;
  w.hacerSolicitud();
  w.informes.ImprimirSolicitudPartidaBautismoDatos(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.fila(), SOLICITUD + HOY + genero("La niña", "nacida"));
}

TEST(BaptismRows, RequestDataMenorca_IsInCatalan) {
  BautismoWorld w;
  w.hacerSolicitud();
  w.informes.ImprimirSolicitudPartidaBautismoDatosMenorca(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.fila(), SOLICITUD + HOY + FECHAS_CATALANAS + genero("La filla", "nada") +
                          (Row{{"FechaSistemaLarga", "vint-i-dos de novembre de 2026"}}));
}

TEST(BaptismRows, RequestDataSantiago_AddsParishesOfBaptism) {
  BautismoWorld w;
  w.hacerSolicitud();
  w.informes.ImprimirSolicitudPartidaBautismoDatosSantiago(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.fila(), sin(SOLICITUD, {"InstitucionTipo"}) + HOY + genero("La niña", "nacida") +
                          (Row{{"InstitucionNombre", "San Ginés"},
                               {"EdadPadrino", "30"},
                               {"ParroquiaDomicilioPadrino", "San José"},
                               {"EdadMadrina", "---"},
                               {"ParroquiaDomicilioMadrina", "---"},
                               {"PadreParroquiaBaut", "Santa Cruz"},
                               {"PadreProfesion", "Maestro"},
                               {"PadreProvinciaParrBaut", "Sevilla"},
                               {"MadreParroquiaBaut", "San Pedro"},
                               {"MadreProfesion", ""},
                               {"MadreProvinciaParrBaut", "Toledo"},
                               {"AbueloPatParroquiaBaut", "Santa Ana"},
                               {"AbueloPatProvinciaParrBaut", "Toledo"},
                               {"AbuelaPatParroquiaBaut", ""},
                               {"AbuelaPatProvinciaParrBaut", "---"},
                               {"AbueloMatParroquiaBaut", "San Juan"},
                               {"AbueloMatProvinciaParrBaut", "Madrid"},
                               {"AbuelaMatParroquiaBaut", "San Blas"},
                               {"AbuelaMatProvinciaParrBaut", "Sevilla"},
                               {"TelefonoPadres", "916950000"}}));
}

}  // namespace
}  // namespace fidaleon::tests
