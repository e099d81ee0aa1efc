// Rules of single columns: blanks, ages, words of gender, padding.

#include "GoldenRows.h"
#include "documents/TextRules.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::DocumentRulesTest {

constexpr const char* FECHA = "20261103";

TEST(BaptismDocuments, WhatIsNotKnown_IsPrintedAsEachDocumentHasIt) {
  using I = cInformes;
  const char *sinNota = "UPDATE Bautismo SET NotasMarginales=NULL",
             *sinSexo = "UPDATE Bautismo_Hijo SET Sexo='---'",
             *nino = "UPDATE Bautismo_Hijo SET Sexo='Hombre'",
             *sinHora = "UPDATE Bautismo_Hijo SET HoraNac=''";
  const struct {
    const char* cambio;
    std::variant<Firmado, SinFirma> imprimir;
    const char* columnas;
  } casos[] = {
      {sinNota, &I::ImprimirCertificadoPartidaBautismo, "NotasMarginales=---"},
      {sinNota, &I::ImprimirVolanteBautismo, "NotasMarginales="},
      {sinSexo, &I::ImprimirCertificadoPartidaBautismo, "Sexo=D./Dª"},
      {sinSexo, &I::ImprimirCertificadoLiteralPartidaBautismo,
       "Al niño/A la niña=al niño; Nacido/Nacida=nacido"},
      {sinSexo, &I::ImprimirVolanteBautismo, "Al niño/A la niña=a la niña; Nacido/Nacida=hija"},
      {sinSexo, &I::ImprimirLibroBautismo, "Al niño/A la niña=a la niña; Nacido/Nacida=nacida"},
      {sinSexo, &I::ImprimirLibroBautismoMenorca,
       "Al niño/A la niña=la filleta; Nacido/Nacida=nada"},
      {nino, &I::ImprimirLibroBautismo, "Al niño/A la niña=al niño; Nacido/Nacida=nacido"},
      {nino, &I::ImprimirLibroBautismoMenorca, "Al niño/A la niña=al fillet; Nacido/Nacida=nat"},
      {nino, &I::ImprimirCertificadoPartidaBautismo, "Sexo=D."},
      {sinHora, &I::ImprimirPartidaBautismo, "HoraNac=---"},
      {sinHora, &I::ImprimirCertificadoLiteralPartidaBautismo, "HoraNac="},
      {"UPDATE Municipio SET Nombre='' WHERE Nombre='Getafe'", &I::ImprimirPartidaBautismo,
       "PoblacionBaut=---; ProvinciaBaut=Madrid"},
      {"UPDATE Municipio SET Nombre='  Toledo' WHERE Nombre='Toledo'", &I::ImprimirPartidaBautismo,
       "PoblacionNac=  Toledo"},
  };
  for (const auto& caso : casos) {
    BautismoWorld w;
    w.run(caso.cambio);
    if (const auto* firmado = std::get_if<Firmado>(&caso.imprimir))
      (w.informes.**firmado)(w.con(), w.conInformes(), 1, "", FECHA);
    else
      (w.informes.*std::get<SinFirma>(caso.imprimir))(w.con(), w.conInformes(), 1);
    Row fila = w.fila();
    for (const auto& [columna, valor] : fields(caso.columnas))
      EXPECT_EQ(fila[columna], valor) << caso.cambio << " " << columna;
  }
}

TEST(BaptismDocuments, EmptyNote_IsPaddedInTheEntry) {
  BautismoWorld w;
  w.run("UPDATE Bautismo SET NotasMarginales=NULL");
  w.informes.ImprimirPartidaBautismo(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.columna("NotasMarginales").size(), 600u);
}

TEST(BaptismDocuments, BlankKeeperAndDate_AreWrittenAsTheyCome) {
  BautismoWorld w;
  w.informes.ImprimirCertificadoPartidaBautismo(w.con(), w.conInformes(), 1, "", "");
  const Row fila = w.fila();
  EXPECT_EQ(fila.at("InstitucionEncargado"), "");
  EXPECT_EQ(fila.at("FechaSistemaCorta"), "//");
  EXPECT_EQ(fila.at("FechaSistemaLarga"), "");
}

TEST(ConfirmationDocuments, AgeWithoutABirth_IsDashed_FolioOfAnUnknownBaptismIsStored) {
  PartidasWorld w;
  w.run("UPDATE Confirmacion SET FechaNac=\"---\"");
  w.run("UPDATE Confirmacion_Bautismo SET FolioBaut=0");
  w.informes.ImprimirNotificacionConfirmacion(w.con(), w.conInformes(), 1);
  w.informes.ImprimirCertificadoPartidaConfirmacion(w.con(), w.conInformes(), 1, "", FECHA);
  store::Recordset rs = w.conInformes().Execute("SELECT * FROM Documentos_Confirmacion");
  for (; !rs.EOF_(); rs.MoveNext()) EXPECT_EQ(rs.text("Edad") + rs.text("FolioBaut"), "---0");
}

TEST(DeathDocuments, KeeperCancelled_TheEntryPrintsWithTodaysDate_EmptyHourIsDashed) {
  PartidasWorld w;
  w.run("UPDATE Defuncion_Datos SET HoraDefuncion=\"\"");
  w.user.expectForm("frmEncargado", [](FormDriver& u) {
    u.type("adtpFecha", "03/11/2026");
    u.escape();
  });
  w.informes.ImprimirPartidaDefuncion(w.con(), w.conInformes(), 1);
  const Row fila = w.fila("Documentos_Defuncion");
  EXPECT_EQ(fila.at("FechaSistemaLarga"), "veintidós de noviembre de 2026");
  EXPECT_EQ(fila.at("HoraDefuncion"), "---");
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

}  // namespace fidaleon::tests::DocumentRulesTest
