// What the members do beside the row: nothing found, blanks, quotes, failures, repetition.

#include "BautismoWorld.h"
#include "documents/TextRules.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

constexpr const char* FECHA = "20261103";

using Miembro = void (*)(BautismoWorld&);

struct Caso {
  const char* nombre;
  Miembro imprimir;
  bool solicitud;
  bool notas = true;
};

const Caso CASOS[] = {
    {"ImprimirCertificadoPartidaBautismo",
     [](BautismoWorld& w) {
       w.informes.ImprimirCertificadoPartidaBautismo(w.con(), w.conInformes(), 1, "", FECHA);
     },
     false},
    {"ImprimirCertificadoLiteralPartidaBautismoMenorca",
     [](BautismoWorld& w) {
       w.informes.ImprimirCertificadoLiteralPartidaBautismoMenorca(w.con(), w.conInformes(), 1, "",
                                                                   FECHA);
     },
     false},
    {"ImprimirPartidaBautismo",
     [](BautismoWorld& w) { w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1); },
     false},
    {"ImprimirVolanteBautismo",
     [](BautismoWorld& w) { w.informes.ImprimirVolanteBautismo(w.con(), w.conInformes(), 1); },
     false, false},
    {"ImprimirSolicitudPartidaBautismoDatosSantiago",
     [](BautismoWorld& w) {
       w.informes.ImprimirSolicitudPartidaBautismoDatosSantiago(w.con(), w.conInformes(), 1);
     },
     true},
};

class BaptismMembers : public ::testing::TestWithParam<Caso> {};

TEST_P(BaptismMembers, DependentRowMissing_NoRowAndNoMessage) {
  for (const char* tabla :
       {"Bautismo_Hijo", "Bautismo_Padres", "Bautismo_Madres", "Bautismo_Matrimonio", "Bautismo"}) {
    BautismoWorld w;
    if (GetParam().solicitud) w.hacerSolicitud();
    w.run(std::string("DELETE * FROM ") + tabla);
    GetParam().imprimir(w);
    EXPECT_EQ(w.filas(), 0) << tabla;
    EXPECT_FALSE(w.conInformes().inTransaction());
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST_P(BaptismMembers, CalledTwice_LeavesTwoRows) {
  BautismoWorld w;
  if (GetParam().solicitud) w.hacerSolicitud();
  GetParam().imprimir(w);
  GetParam().imprimir(w);
  EXPECT_EQ(w.filas(), 2);
}

TEST_P(BaptismMembers, WrongKindOfEntry_NoRow) {
  BautismoWorld w;
  if (!GetParam().solicitud) w.hacerSolicitud();
  GetParam().imprimir(w);
  EXPECT_EQ(w.filas(), 0);
}

TEST_P(BaptismMembers, QuotesOfAnyKind_ArriveAsTheyAreStored) {
  BautismoWorld w;
  if (GetParam().solicitud) w.hacerSolicitud();
  w.run("UPDATE Bautismo SET NotasMarginales='Llamada \"Luz\" por O''Hara'");
  w.run("UPDATE Bautismo_Padres SET Nombre='Luis \"el Rubio\" d''Ors'");
  GetParam().imprimir(w);
  EXPECT_EQ(w.columna("NombrePadre"), "Luis \"el Rubio\" d'Ors");
  if (GetParam().notas) {
    EXPECT_THAT(w.columna("NotasMarginales"), ::testing::StartsWith("Llamada \"Luz\" por O'Hara"));
  }
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_P(BaptismMembers, StatementFails_RollsBackAndNamesTheMember) {
  BautismoWorld w;
  if (GetParam().solicitud) w.hacerSolicitud();
  store::FailingEngine::wrap(w.conInformes())->failOn("INSERT INTO Documentos_Bautismo");
  w.user.answerAnything(forms::Answer::Ok);
  GetParam().imprimir(w);
  EXPECT_EQ(w.filas(), 0);
  EXPECT_FALSE(w.conInformes().inTransaction());
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(
      w.user.messages()[0].text,
      ::testing::HasSubstr(std::string("FidaleonNucleo / cInformes / ") + GetParam().nombre + ")"));
  EXPECT_SCRIPT_DONE(w.user);
}

INSTANTIATE_TEST_SUITE_P(Documents, BaptismMembers, ::testing::ValuesIn(CASOS),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

TEST(BaptismDocuments, StoreOfReportsFails_LeavesNoRowAndNoTransaction) {
  for (const char* paso :
       {"BEGIN", "INSERT INTO Documentos_Bautismo", "SELECT MAX(Folio)", "COMMIT"}) {
    BautismoWorld w;
    store::FailingEngine::wrap(w.conInformes())->failOn(paso, store::ErrorKind::DiskFull);
    w.user.answerAnything(forms::Answer::Ok);
    w.informes.ImprimirVolanteBautismo(w.con(), w.conInformes(), 1);
    EXPECT_EQ(w.user.messages().size(), 1u) << paso;
    EXPECT_FALSE(w.conInformes().inTransaction()) << paso;
    EXPECT_EQ(w.filas(), 0) << paso;
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(BaptismDocuments, Volante_ReadsItsTableBackBeforeTheCommit) {
  BautismoWorld w;
  const store::FailingEngine* motor = store::FailingEngine::wrap(w.conInformes());
  w.informes.ImprimirVolanteBautismo(w.con(), w.conInformes(), 1);
  EXPECT_THAT(motor->executed(),
              ::testing::ElementsAre("BEGIN", ::testing::StartsWith("INSERT INTO"),
                                     "SELECT MAX(Folio) AS ID FROM Documentos_Bautismo", "COMMIT"));
}

TEST(BaptismDocuments, EachPlace_IsAskedForOnce) {
  BautismoWorld w;
  const store::FailingEngine* motor = store::FailingEngine::wrap(w.con());
  w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1);
  // Three towns by name and province, and the key 0, which needs no statement.
  EXPECT_LE(motor->executed().size(), 1u + 2u * 4u);
}

TEST(BaptismDocuments, EmptyNote_IsDashedInCertificatesEmptyInRequestPaddedInEntry) {
  BautismoWorld w;
  w.run("UPDATE Bautismo SET NotasMarginales=NULL");
  w.informes.ImprimirCertificadoPartidaBautismo(w.con(), w.conInformes(), 1, "", FECHA);
  EXPECT_EQ(w.columna("NotasMarginales"), "---");
  w.conInformes().Execute("DELETE * FROM Documentos_Bautismo");
  w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.columna("NotasMarginales").size(), 600u);
  w.conInformes().Execute("DELETE * FROM Documentos_Bautismo");
  w.informes.ImprimirVolanteBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.columna("NotasMarginales"), "");
}

TEST(BaptismDocuments, SexUnknown_CountsAsBoyExceptInVolante) {
  BautismoWorld w;
  w.run("UPDATE Bautismo_Hijo SET Sexo=\"---\"");
  w.informes.ImprimirCertificadoPartidaBautismo(w.con(), w.conInformes(), 1, "", FECHA);
  EXPECT_EQ(w.columna("Sexo"), "D./Dª");
  w.conInformes().Execute("DELETE * FROM Documentos_Bautismo");
  w.informes.ImprimirCertificadoLiteralPartidaBautismo(w.con(), w.conInformes(), 1, "", FECHA);
  EXPECT_EQ(w.columna("Al niño/A la niña"), "al niño");
  EXPECT_EQ(w.columna("Nacido/Nacida"), "nacido");
  w.conInformes().Execute("DELETE * FROM Documentos_Bautismo");
  w.informes.ImprimirVolanteBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.columna("Al niño/A la niña"), "a la niña");
  EXPECT_EQ(w.columna("Nacido/Nacida"), "hija");
}

TEST(BaptismDocuments, EmptyHour_IsDashedInTheEntryOnly) {
  BautismoWorld w;
  w.run("UPDATE Bautismo_Hijo SET HoraNac=\"\"");
  w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.columna("HoraNac"), "---");
  w.conInformes().Execute("DELETE * FROM Documentos_Bautismo");
  w.informes.ImprimirCertificadoLiteralPartidaBautismo(w.con(), w.conInformes(), 1, "", FECHA);
  EXPECT_EQ(w.columna("HoraNac"), "");
}

TEST(BaptismDocuments, TownWithoutName_IsDashed_LeadingBlanksStay) {
  BautismoWorld w;
  w.run("UPDATE Municipio SET Nombre=\"\" WHERE IDMunicipio=" + std::to_string(w.getafe));
  w.run("UPDATE Municipio SET Nombre=\"  Toledo\" WHERE IDMunicipio=" + std::to_string(w.toledo));
  w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.columna("PoblacionBaut"), "---");
  EXPECT_EQ(w.columna("ProvinciaBaut"), "Madrid");
  EXPECT_EQ(w.columna("PoblacionNac"), "  Toledo");
}

TEST(BaptismDocuments, BlankKeeperAndDate_AreWrittenAsTheyCome) {
  BautismoWorld w;
  w.informes.ImprimirCertificadoPartidaBautismo(w.con(), w.conInformes(), 1, "", "");
  const Row fila = w.fila();
  EXPECT_EQ(fila.at("InstitucionEncargado"), "");
  EXPECT_EQ(fila.at("FechaSistemaCorta"), "//");
  EXPECT_EQ(fila.at("FechaSistemaLarga"), "");
}

TEST(BaptismDocuments, TextOfAnyScript_ArrivesUnchanged) {
  BautismoWorld w;
  const std::string nombre = "Łucja 李 عائشة 👶 L'Ànna";
  w.run("UPDATE Bautismo_Hijo SET Nombre=\"" + nombre + "\"");
  w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.columna("NombreHijo"), nombre);
}

TEST(TextRules, PaddedNotes_ReachAtLeast600Characters) {
  using documents::paddedNotes;
  EXPECT_EQ(paddedNotes(std::string(599, 'x')), std::string(599, 'x') + " .");
  EXPECT_EQ(paddedNotes(std::string(600, 'x')), std::string(600, 'x'));
  EXPECT_EQ(paddedNotes(std::string(598, 'x')), std::string(598, 'x') + " .");
  std::string accented;
  for (int i = 0; i < 599; ++i) accented += "ñ";
  EXPECT_EQ(paddedNotes(accented), accented + " .");
}

TEST(TextRules, ValorImprimible_DashesForNullAndBlanksOnly) {
  using documents::ValorImprimible;
  EXPECT_EQ(ValorImprimible(store::Value()), "---");
  EXPECT_EQ(ValorImprimible(std::string("   ")), "---");
  EXPECT_EQ(ValorImprimible(std::string(" x ")), " x ");
  EXPECT_EQ(ValorImprimible(store::Value(std::int64_t{0})), "0");
}

TEST(TextRules, GenderTest_IsExact) {
  EXPECT_STREQ(documents::WORDS_ENTRY.child("hombre"), "a la niña");
  EXPECT_STREQ(documents::WORDS_ENTRY.child(""), "a la niña");
  EXPECT_STREQ(documents::formOfAddress("Hombre"), "D.");
  EXPECT_STREQ(documents::formOfAddress("mujer"), "D./Dª");
}

}  // namespace
}  // namespace fidaleon::tests
