// What the dialog of deaths has of its own.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

using P = frmPartidaDefuncion;

class Death : public EntryHands {
 protected:
  Death() : EntryHands(DEATH_ENTRY) {}
  std::string stored(const std::string& column) {
    return w.value("SELECT " + column +
                   " FROM Defuncion, Defuncion_Datos WHERE CodDifunto=IDDifunto");
  }
};

TEST_F(Death, New_BeginsWithTheInstitutionAndStoresWhatIsKnown) {
  book("Libro 1");
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    EXPECT_FALSE(d.visible(text(P::NotasMarginales)));
    EXPECT_EQ(d.text(text(P::Parroquia)), "San Pedro");
    EXPECT_EQ(d.text(text(P::Sacerdote)), "Pedro Ruiz Sanz");
    for (const char* townList : {"1", "3", "5", "7"})
      EXPECT_EQ(d.text("cboDefuncion(" + std::string(townList) + ")"), "Alcalá de Henares");
    typePerson(d, "Ana");
    d.type("txtHoraDefuncion", "0715");
    tab(d, P::TAB_FAMILIA);
    EXPECT_EQ(d.text(text(P::NombrePadre)), "--- García ---");
    EXPECT_EQ(d.text(text(P::NombreMadre)), "--- Pérez ---");
    d.type(text(P::NumeroHijos), "2x");
    EXPECT_EQ(w.user.beeps(), 1) << "digits alone";
    d.type(text(P::RelacionDifunto), "Hija");
    w.user.expectMessage(k.blanks, Answer::No);
    accept(d);
    w.user.expectMessage(k.blanks, Answer::Yes);
    w.user.expectMessage(FURTHER_ENTRY, Answer::Yes);
    accept(d);
    EXPECT_EQ(d.text(text(P::Nombre)) + d.text(text(P::NombrePadre)), "");
    EXPECT_EQ(d.text(text(P::Parroco)), "Pedro Ruiz Sanz") << "what the institution says stays";
    typePerson(d, "Eva");
    w.user.expectMessage(FURTHER_ENTRY, Answer::No);
    accept(d);  // what was agreed to once is not asked again
  });
  EXPECT_EQ(w.count("Defuncion WHERE CodMunicipioParr=" + std::to_string(town)), 2);
  w.con().Execute("DELETE * FROM Defuncion WHERE Nombre=\"Eva\"");
  EXPECT_EQ(stored("FechaDefuncion") + stored("HoraDefuncion") + stored("FechaInhumacion"),
            "2026112007:1520261122");
  EXPECT_EQ(stored("Causa") + stored("NumeroHijos") + stored("RelacionDifunto"), "---2Hija");
  EXPECT_EQ(stored("NotasMarginales") + stored("NombreContacto"), "------");
}

TEST_F(Death, BurialBeforeTheDeath_IsAskedAboutAndNothingStored) {
  book("Libro 1");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Ana");
    d.type("adtpDefuncion(1)", "22/11/2026");
    tab(d, P::TAB_PARROQUIA);
    d.type("adtpDefuncion(0)", "21/11/2026");
    w.user.expectMessage("Hay fechas que no pueden ser. ¿Desea guardarlas así?", Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.count("Defuncion"), 0);
}

TEST_F(Death, BaptismFound_BringsBirthAndParentsAndNothingElse) {
  book("Libro 1");
  insertEntry(
      w, BAUTISMO,
      {"Ana", insertBook(w, BAUTISMO, parish, {"B", false, 1, false, "19500101"}), 4, "12"});
  w.con().Execute("UPDATE Bautismo_Hijo SET CodMunicipioNac=" +
                  std::to_string(w.municipio("Getafe", "Madrid")));
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) {
      EXPECT_EQ(hits.caption(), "Búsqueda por García Pérez");
      hits.click("cmdBoton(0)");
    });
    typePerson(d, "Anita");
    d.focus(date(1));
    EXPECT_EQ(d.text(text(P::Nombre)), "Ana");
    EXPECT_EQ(d.text(text(P::NombrePadre)), "Juan García");
    EXPECT_EQ(d.text("cboDefuncion(7)"), "Getafe");
    EXPECT_EQ(d.text("cboDefuncion(3)"), "Alcalá de Henares");
    EXPECT_EQ(d.text(text(P::DomicilioActual)), "");
  });
}

TEST_F(Death, Corrected_AsksOnlyForBlankTexts) {
  const std::int32_t id = entry("Ana", book("Libro 1"), 1, "1");
  for (const char* cause : {"Vejez", "Pulmonía"})
    edit(id, [&](FormDriver& d) {
      tab(d, P::TAB_DIFUNTO);
      d.type(text(P::Causa), cause);
      if (cause == std::string("Vejez")) w.user.expectMessage(k.blanks, Answer::Yes);
      accept(d);  // the second time the lists and dates alone are blank
    });
  EXPECT_EQ(stored("Causa") + stored("EstadoCivil"), "Pulmonía---");
}

TEST_F(Death, TypedFolioAboveTheLimit_IsRefusedUnlessItStoodThere) {
  w.contexto.guardarAjuste("documentos", "DOCUMENTOS_MAXPAGLIBRO", "5");
  const std::int32_t id = entry("Ana", book("Libro 1", false), 1, "1");
  w.con().Execute("UPDATE Defuncion SET Folio=9");
  const char* limit = "¡Ha llegado al límite de folios establecidos para un libro!";
  edit(id, [&](FormDriver& d) {
    d.type("txtLibro(1)", "7");
    tab(d, P::TAB_NOTAS);
    w.user.expectMessage(limit);
    accept(d);
    EXPECT_EQ(tab(d), 0);
    d.type("txtLibro(1)", "9");
    w.user.expectMessage(k.blanks, Answer::Yes);
    accept(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(stored("Folio"), "9");
}

}  // namespace fidaleon::tests
